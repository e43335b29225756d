// The names of the measurements from which the ratios are calculated.
#pragma once

#include <cstdint>

namespace orvane {

inline constexpr const char* NanosecondsAnExchange = "ns_per_exchange";
inline constexpr std::int64_t ShuffledSizes[] = {16, 100, 1000, 4000, 14654};

inline constexpr const char* StraightforwardShuffle = "a: straightforward shuffle";
inline constexpr const char* ProgramShuffle = "b: shuffle of the program";
inline constexpr const char* BareExchanges = "c: bare exchanges";

inline constexpr const char* StraightforwardList = "list: straightforward";
inline constexpr const char* ProgramList = "list: program";

inline constexpr const char* ProgramStart = "start: program";
inline constexpr const char* EmptyWindowStart = "start: empty window";
inline constexpr const char* TextWindowStart = "start: window with a line of text";
inline constexpr const char* PeakMemory = "peak_memory";

} // namespace orvane
