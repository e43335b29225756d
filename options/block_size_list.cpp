#include "options/block_size_list.h"

#include "engine/numbers.h"
#include "engine/random_draws.h"
#include "platform/failure.h"
#include "platform/text.h"

#include <algorithm>
#include <limits>
#include <string_view>

namespace orvane {

namespace {

constexpr std::size_t Most16 = std::numeric_limits<std::int16_t>::max();

Failure TooMany(const std::string& what) {
    return {"Overflow: " + what, failure_number::Overflow, "BlockSizeList"};
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    if (text.empty())
        return parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

/// The number in `digits`, 0 for an empty text.
/// Requires: digits only.
std::int16_t ValueOf(const std::string& digits) {
    return ToInt16(NumericValue(digits));
}

void AppendCandidate(std::vector<std::int16_t>& pool, std::int16_t size) {
    if (pool.size() > Most16)
        throw TooMany("more than " + std::to_string(Most16) + " block sizes");
    pool.push_back(size);
}

} // namespace

bool BlockSizeList::NotValid(const std::string& InpStr) {
    if (InpStr.empty())
        return true;
    // The length is a 16-bit number, and a loop over the characters ends one past the last.
    if (CharacterCount(InpStr) >= Most16)
        throw TooMany("a list of block sizes of " + std::to_string(Most16) + " or more characters");
    const std::string S = RemoveSpaces(InpStr);
    return !ValidChars(S) || !BuildArr(S);
}

std::string BlockSizeList::RemoveSpaces(const std::string& S) {
    std::string kept = S;
    std::erase(kept, ' ');
    return kept;
}

bool BlockSizeList::ValidChars(const std::string& S) {
    return std::all_of(S.begin(), S.end(),
                       [](char c) { return (c >= '0' && c <= '9') || c == '-' || c == ','; });
}

bool BlockSizeList::BuildArr(const std::string& S) {
    std::vector<std::int16_t> pool{0};
    if (!ExpandItems(S, pool)) {
        TellFault("Error in the value of block sizes");
        return false;
    }
    const std::int16_t groups = settings_.NumberOfGroups;
    if (std::any_of(pool.begin(), pool.end(), [groups](std::int16_t size) { return size % groups != 0; })) {
        TellFault("block sizes must be divisable by the number of groups");
        return false;
    }
    DrawBlocks(pool);
    return true;
}

bool BlockSizeList::ExpandItems(const std::string& S, std::vector<std::int16_t>& pool) {
    for (const std::string& item : Split(S, ',')) {
        if (item.find('-') == std::string::npos) {
            const std::int16_t size = ValueOf(item);
            if (size == 0)
                return false;
            AppendCandidate(pool, size);
            continue;
        }
        std::int16_t min{};
        std::int16_t max{};
        GetMinMax(item, min, max);
        if (min == 0 || max == 0)
            return false;
        for (std::int16_t size = min; size <= max; size = Add16(size, 1))
            AppendCandidate(pool, size);
    }
    return true;
}

void BlockSizeList::GetMinMax(const std::string& S, std::int16_t& min, std::int16_t& max) {
    min = max = 0;
    const std::vector<std::string> ends = Split(S, '-');
    if (ends.size() != 2)
        return;
    min = ValueOf(ends[0]);
    max = ValueOf(ends[1]);
}

void BlockSizeList::TellFault(const std::string& message) {
    desktop_.Messages.Show(message);
    controls_.FocusUnEqBlockSizeTxt();
}

void BlockSizeList::DrawBlocks(const std::vector<std::int16_t>& pool) {
    desktop_.Random.UniformReseed(desktop_.Clock.SecondsSinceMidnight());
    results_.BlockSizes.assign(1, 0);
    if (pool.size() == 1)
        throw Failure("The list of block sizes stands for no size", failure_number::OutOfRange, "BuildArr");
    const std::int16_t last = ToInt16(static_cast<double>(pool.size() - 1));
    std::int16_t sum = 0;
    do {
        const std::int16_t slot = DrawRandomInt(desktop_.Random, 1, last);
        const std::int16_t size = pool[static_cast<std::size_t>(slot)];
        results_.BlockSizes.push_back(size);
        sum = Add16(sum, size);
    } while (sum < settings_.SampleSize);
}

} // namespace orvane
