// Compiler directives: which functions must be inlined, and for which processors a function is compiled in
// addition to the portable version. A compiler without these directives builds the portable version alone.
#pragma once

#if defined(__GNUC__)
#define ORVANE_INLINE [[gnu::always_inline]] inline
#else
#define ORVANE_INLINE inline
#endif

#if defined(__GNUC__) && defined(__x86_64__)
#define ORVANE_HAS_X86_VERSIONS 1
#define ORVANE_AVX2 [[gnu::target("avx2,fma")]]
#if defined(__clang__)
#define ORVANE_AVX512 [[gnu::target("avx512f,avx512vl,avx512bw,avx512dq,fma"), clang::min_vector_width(512)]]
#else
#define ORVANE_AVX512 [[gnu::target("avx512f,avx512vl,avx512bw,avx512dq,fma,prefer-vector-width=512")]]
#endif
#else
#define ORVANE_HAS_X86_VERSIONS 0
#endif

namespace orvane {

#if ORVANE_HAS_X86_VERSIONS

inline bool MachineRunsAvx2() {
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
}

inline bool MachineRunsAvx512() {
    return MachineRunsAvx2() && __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
           __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq");
}

#endif

} // namespace orvane
