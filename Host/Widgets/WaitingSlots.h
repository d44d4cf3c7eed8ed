#pragma once

#include <QtCore/QtAlgorithms>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace Zorvane {

/**
 * The slots of a list that have not been taken yet, by number, while slots are taken in any order.
 * Asking for the first, or for a neighbour of the one asked for last, and taking are cheap; asking
 * for any other costs the logarithm of the list's length, and so does taking from then on.
 *
 * Not supported: putting a slot back, asking for a slot or number that is not there.
 */
class WaitingSlots
{
public:
    explicit WaitingSlots(std::size_t count = 0)
        : m_words(count / BitsPerWord + 1, ~std::uint64_t(0))
        , m_count(count)
    {
        m_words.back() = bitsBelow(count);
    }

    std::size_t count() const { return m_count; }
    /** Also of slots that never were. */
    bool contains(std::size_t slot) const
    {
        return slot >= m_begin && slot / BitsPerWord < m_words.size() && hasBit(slot);
    }
    std::size_t first() const { return firstFrom(m_begin); }

    /** Takes the first `count` slots; `visit` is called with each, in order. */
    template <typename Visitor>
    void takeFirst(std::size_t count, Visitor visit)
    {
        // The bits stay: what lies before the beginning is left out of every count instead.
        for (std::size_t left = count; left > 0; --left) {
            const std::size_t slot = first();
            m_begin = slot + 1;
            visit(slot);
        }
        m_passed += count;
        m_count -= count;
        m_lastNumber -= std::min(count, m_lastNumber);
    }

    void take(std::size_t slot)
    {
        m_words[slot / BitsPerWord] &= ~(std::uint64_t(1) << (slot % BitsPerWord));
        for (std::size_t i = slot / BitsPerWord + 1; i < m_sums.size(); i += lowestBitOf(i))
            --m_sums[i];
        --m_count;
        if (slot < m_lastSlot)
            --m_lastNumber;
    }

    /** The slot before which `number` others wait. */
    std::size_t nth(std::size_t number) const
    {
        if (number == 0)
            return first();
        const std::size_t lastStillThere = contains(m_lastSlot) ? 1 : 0;
        if (number + 1 == m_lastNumber)
            m_lastSlot = previous(m_lastSlot);
        else if (number == m_lastNumber + lastStillThere)
            m_lastSlot = firstFrom(m_lastSlot + 1);
        else if (number != m_lastNumber)
            m_lastSlot = search(number + m_passed);
        m_lastNumber = number;
        return m_lastSlot;
    }

private:
    static constexpr std::size_t BitsPerWord = 64;

    static std::uint64_t bitsBelow(std::size_t slot)
    {
        return (std::uint64_t(1) << (slot % BitsPerWord)) - 1;
    }
    static std::size_t lowestBitOf(std::size_t number) { return number & (~number + 1); }

    static std::size_t nthBit(std::uint64_t word, std::size_t number)
    {
        for (; number > 0; --number)
            word &= word - 1;
        return qCountTrailingZeroBits(word);
    }

    bool hasBit(std::size_t slot) const
    {
        return (m_words[slot / BitsPerWord] >> (slot % BitsPerWord)) & 1U;
    }

    std::size_t firstFrom(std::size_t slot) const
    {
        std::size_t word = slot / BitsPerWord;
        std::uint64_t bits = m_words[word] & ~bitsBelow(slot);
        while (bits == 0)
            bits = m_words[++word];
        return word * BitsPerWord + qCountTrailingZeroBits(bits);
    }

    std::size_t previous(std::size_t slot) const
    {
        std::size_t word = slot / BitsPerWord;
        std::uint64_t bits = m_words[word] & bitsBelow(slot);
        while (bits == 0)
            bits = m_words[--word];
        return word * BitsPerWord + BitsPerWord - 1 - qCountLeadingZeroBits(bits);
    }

    void countBits() const
    {
        m_sums.assign(m_words.size() + 1, 0);
        for (std::size_t i = 1; i < m_sums.size(); ++i) {
            m_sums[i] += qPopulationCount(m_words[i - 1]);
            if (const std::size_t above = i + lowestBitOf(i); above < m_sums.size())
                m_sums[above] += m_sums[i];
        }
    }

    std::size_t search(std::size_t number) const
    {
        if (m_sums.empty())
            countBits();
        std::size_t word = 0;
        std::size_t step = 1;
        while (step * 2 < m_sums.size())
            step *= 2;
        for (; step > 0; step /= 2) {
            if (word + step < m_sums.size() && m_sums[word + step] <= number) {
                word += step;
                number -= m_sums[word];
            }
        }
        return word * BitsPerWord + nthBit(m_words[word], number);
    }

    /** One bit a slot. */
    std::vector<std::uint64_t> m_words;
    /**
     * A Fenwick tree: entry i counts the bits of the words (i - lowest bit of i, i]. Empty until
     * somebody asks for a slot that is far away.
     */
    mutable std::vector<std::uint32_t> m_sums;
    std::size_t m_count;
    /** Nothing waits before this slot, though some bits are left there, so many. */
    std::size_t m_begin = 0;
    std::size_t m_passed = 0;
    /**
     * The slot asked for last, and how many wait before it: exactly so many after each operation,
     * also when that slot itself has been taken since. `nth` only remembers here what it found, so
     * asking changes no answer; but it is not for several threads.
     */
    mutable std::size_t m_lastSlot = 0;
    mutable std::size_t m_lastNumber = 0;
};

} // namespace Zorvane
