#include "TreeModel/RowListSorting.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace Zorvane::GenericTreeViewModelHandling {

namespace {

using RowList = ZVTreeItemDataProviderInterface::RowList;

/**
 * From so many rows on, distributing them by the digits of their ids beats comparing them: with
 * comparisons, building a tree of 100,000 rows takes 1.2 times the instructions and 1.3 times as
 * long.
 */
constexpr std::size_t LongList = 2000;

constexpr unsigned DigitBits = 11;
constexpr std::size_t DigitCount = std::size_t(1) << DigitBits;

struct Key
{
    std::uint64_t value;
    std::uint32_t row;
};

bool isLess(const RowList::value_type& left, const RowList::value_type& right)
{
    return left.first < right.first;
}

std::size_t digitOf(const Key& key, unsigned shift)
{
    return (key.value >> shift) & (DigitCount - 1);
}

/** One stable pass; false, with nothing done, when all keys have the same digit. */
bool distribute(const std::vector<Key>& from, std::vector<Key>& to, unsigned shift)
{
    std::array<std::uint32_t, DigitCount> next{};
    for (const Key& key : from)
        ++next[digitOf(key, shift)];
    if (next[digitOf(from.front(), shift)] == from.size())
        return false;
    std::uint32_t sum = 0;
    for (std::uint32_t& start : next)
        sum += std::exchange(start, sum);
    for (const Key& key : from)
        to[next[digitOf(key, shift)]++] = key;
    return true;
}

void sortByValue(RowList& rows)
{
    std::vector<Key> keys(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        keys[i] = {rows[i].first.getIdentifier().getValue(), static_cast<std::uint32_t>(i)};
    std::vector<Key> other(rows.size());
    for (unsigned shift = 0; shift < 64; shift += DigitBits) {
        if (distribute(keys, other, shift))
            keys.swap(other);
    }
    RowList sorted;
    sorted.reserve(rows.capacity());
    for (const Key& key : keys)
        sorted.push_back(rows[key.row]);
    rows = std::move(sorted);
}

} // namespace

void sortById(RowList& rows)
{
    if (std::is_sorted(rows.begin(), rows.end(), isLess))
        return;
    const bool byValue = rows.size() >= LongList &&
                         std::all_of(rows.begin(), rows.end(),
                                     [](const auto& entry) { return entry.first.hasIdentifier(); });
    if (byValue)
        sortByValue(rows);
    // Ids of one value are told apart by their sub-values, which have not been looked at yet.
    if (!byValue || !std::is_sorted(rows.begin(), rows.end(), isLess))
        std::sort(rows.begin(), rows.end(), isLess);
}

} // namespace Zorvane::GenericTreeViewModelHandling
