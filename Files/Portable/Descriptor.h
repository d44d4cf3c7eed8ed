#pragma once

#include "Files/Portable/SystemCalls.h"

#include <cerrno>
#include <utility>

namespace Zorvane {

/** An open file, closed when this goes. Nothing depends on what closing says: see `SystemCalls`. */
class Descriptor
{
public:
    Descriptor() = default;
    Descriptor(const SystemCalls& calls, int file)
        : m_calls(&calls)
        , m_file(file)
    {}
    ~Descriptor() { close(); }

    Descriptor(Descriptor&& other) noexcept
        : m_calls(other.m_calls)
        , m_file(std::exchange(other.m_file, -1))
    {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        if (this != &other) {
            close();
            m_calls = other.m_calls;
            m_file = std::exchange(other.m_file, -1);
        }
        return *this;
    }

    bool isOpen() const { return m_file >= 0; }
    int get() const { return m_file; }

    void close()
    {
        if (isOpen())
            m_calls->close(std::exchange(m_file, -1));
    }

private:
    const SystemCalls* m_calls = nullptr;
    int m_file = -1;
};

/** Calls until no signal interrupts. */
template <typename Call>
auto uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/** The error of such a call; 0 for none. */
template <typename Call>
int errorOf(Call call)
{
    return uninterrupted(call) < 0 ? errno : 0;
}

} // namespace Zorvane
