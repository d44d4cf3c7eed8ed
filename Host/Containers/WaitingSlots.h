#pragma once

#include <QtCore/QtAlgorithms>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Zorvane {

/**
 * The slots of a list that have not been taken yet: tells how many wait before a given one and
 * which is the n-th, while slots are taken in any order. Each answer costs the logarithm of the
 * list's length, the first slot and a neighbour of the one asked for last less.
 *
 * Not supported: putting a slot back, asking for a slot or number that is not there.
 */
class WaitingSlots
{
public:
    explicit WaitingSlots(std::size_t count = 0)
        : m_words(count / BitsPerWord + 1, ~std::uint64_t(0))
        , m_sums(m_words.size() + 1, std::uint32_t(BitsPerWord))
        , m_count(count)
        , m_end(count)
    {
        m_words.back() = bitsBelow(count);
        m_sums.back() = std::uint32_t(count % BitsPerWord);
        for (std::size_t i = 1; i < m_sums.size(); ++i) {
            if (const std::size_t above = i + lowestBitOf(i); above < m_sums.size())
                m_sums[above] += m_sums[i];
        }
    }

    std::size_t count() const { return m_count; }
    bool contains(std::size_t slot) const
    {
        return (m_words[slot / BitsPerWord] >> (slot % BitsPerWord)) & 1U;
    }

    void remove(std::size_t slot)
    {
        m_words[slot / BitsPerWord] &= ~(std::uint64_t(1) << (slot % BitsPerWord));
        for (std::size_t i = slot / BitsPerWord + 1; i < m_sums.size(); i += lowestBitOf(i))
            --m_sums[i];
        --m_count;
        if (slot < m_lastSlot)
            --m_lastNumber;
    }

    /** The end, one behind all slots, when none waits. */
    std::size_t first() const
    {
        while (m_firstWord < m_words.size() && m_words[m_firstWord] == 0)
            ++m_firstWord;
        return m_firstWord == m_words.size()
                   ? m_end
                   : m_firstWord * BitsPerWord + qCountTrailingZeroBits(m_words[m_firstWord]);
    }

    std::size_t countBefore(std::size_t slot) const
    {
        std::size_t count = bitCount(m_words[slot / BitsPerWord] & bitsBelow(slot));
        for (std::size_t i = slot / BitsPerWord; i > 0; i -= lowestBitOf(i))
            count += m_sums[i];
        return count;
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
            m_lastSlot = next(m_lastSlot);
        else if (number != m_lastNumber)
            m_lastSlot = search(number);
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
    static std::size_t bitCount(std::uint64_t word)
    {
        // In pairs, nibbles, bytes: processors that count bits cannot be taken for granted.
        word -= (word >> 1U) & 0x5555555555555555U;
        word = (word & 0x3333333333333333U) + ((word >> 2U) & 0x3333333333333333U);
        word = (word + (word >> 4U)) & 0x0f0f0f0f0f0f0f0fU;
        return static_cast<std::size_t>((word * 0x0101010101010101U) >> 56U);
    }

    std::size_t next(std::size_t slot) const
    {
        std::size_t word = slot / BitsPerWord;
        std::uint64_t bits = m_words[word] & (~std::uint64_t(1) << (slot % BitsPerWord));
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

    std::size_t search(std::size_t number) const
    {
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
        std::uint64_t bits = m_words[word];
        for (; number > 0; --number)
            bits &= bits - 1;
        return word * BitsPerWord + qCountTrailingZeroBits(bits);
    }

    /** One bit a slot. */
    std::vector<std::uint64_t> m_words;
    /** A Fenwick tree: entry i counts the bits of the words (i - lowest bit of i, i]. */
    std::vector<std::uint32_t> m_sums;
    std::size_t m_count;
    std::size_t m_end;
    mutable std::size_t m_firstWord = 0;
    /** The slot asked for last, which may be taken since, and how many wait before it. */
    mutable std::size_t m_lastSlot = 0;
    mutable std::size_t m_lastNumber = 0;
};

} // namespace Zorvane
