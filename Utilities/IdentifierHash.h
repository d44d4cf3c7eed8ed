#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace Zorvane {

/**
 * Hashes identifiers of some dozens of characters faster than a standard library does, so that a
 * look-up among ten is no slower than comparing with each. Internal to `IdentifierToColorMap`.
 */
struct IdentifierHash
{
    std::size_t operator()(const std::string& id) const
    {
        const char* const text = id.data();
        const std::size_t size = id.size();
        std::uint64_t sum = size;
        if (size < WordSize) {
            sum += word(text, size) * Factor;
        } else {
            // The factors differ by place and none waits for the product before. The last word
            // overlaps the one before: that is faster than a part of one.
            std::uint64_t factor = Factor;
            for (std::size_t place = 0; place + WordSize < size; place += WordSize) {
                sum += word(text + place, WordSize) * factor;
                factor += Step;
            }
            sum += word(text + size - WordSize, WordSize) * factor;
        }
        sum = (sum ^ (sum >> 32U)) * Factor;
        return static_cast<std::size_t>(sum ^ (sum >> 29U));
    }

private:
    static constexpr std::size_t WordSize = sizeof(std::uint64_t);
    // The factor is odd and the step even, so that every factor is odd; bits in no pattern.
    static constexpr std::uint64_t Factor = 0x9e3779b97f4a7c15U;
    static constexpr std::uint64_t Step = 0xd1b54a32d192ed02U;

    static std::uint64_t word(const char* place, std::size_t size)
    {
        std::uint64_t word = 0;
        std::memcpy(&word, place, size);
        return word;
    }
};

} // namespace Zorvane
