#pragma once

#include <utility>

#include <windows.h>

#include <unknwn.h>

namespace Zorvane {

/** Holds one reference on a COM object, or none; each holder its own. */
template <typename Interface>
class ComPointer
{
public:
    ComPointer() = default;
    /** Adds a reference of its own. */
    explicit ComPointer(Interface* object)
        : m_object(object)
    {
        if (m_object)
            m_object->AddRef();
    }
    ComPointer(const ComPointer& other)
        : ComPointer(other.m_object)
    {}
    ComPointer(ComPointer&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {}
    ~ComPointer() { reset(); }

    ComPointer& operator=(ComPointer other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    /** Takes over the reference that the caller has, such as that of a new object. */
    static ComPointer adopt(Interface* object)
    {
        ComPointer pointer;
        pointer.m_object = object;
        return pointer;
    }

    void reset()
    {
        if (Interface* object = std::exchange(m_object, nullptr))
            object->Release();
    }

    /** Where a call puts the reference that it hands out; what was held is released. */
    Interface** put()
    {
        reset();
        return &m_object;
    }

    Interface* get() const { return m_object; }
    Interface* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    Interface* m_object = nullptr;
};

} // namespace Zorvane
