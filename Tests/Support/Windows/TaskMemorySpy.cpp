#include "Tests/Support/Windows/TaskMemorySpy.h"

#include "Files/Windows/ComObject.h"

#include <QtCore/QtGlobal>

#include <mutex>
#include <set>

#include <windows.h>

#include <objbase.h>
#include <objidl.h>

namespace Zorvane::Testing {

namespace {

/** Hears of every allocation of task memory in this process, and changes none. */
class Spy final : public ComObject<IMallocSpy>
{
public:
    int living()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return int(m_blocks.size());
    }

    // clang-format off
    SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T size) override { return size; }
    void* STDMETHODCALLTYPE PostAlloc(void* block) override { return added(block); }
    void* STDMETHODCALLTYPE PreFree(void* block, WINBOOL) override { return removed(block); }
    void STDMETHODCALLTYPE PostFree(WINBOOL) override {}
    SIZE_T STDMETHODCALLTYPE PreRealloc(void* block, SIZE_T size, void** changed, WINBOOL) override { *changed = removed(block); return size; }
    void* STDMETHODCALLTYPE PostRealloc(void* block, WINBOOL) override { return added(block); }
    void* STDMETHODCALLTYPE PreGetSize(void* block, WINBOOL) override { return block; }
    SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T size, WINBOOL) override { return size; }
    void* STDMETHODCALLTYPE PreDidAlloc(void* block, WINBOOL) override { return block; }
    int STDMETHODCALLTYPE PostDidAlloc(void*, WINBOOL, int answer) override { return answer; }
    void STDMETHODCALLTYPE PreHeapMinimize() override {}
    void STDMETHODCALLTYPE PostHeapMinimize() override {}
    // clang-format on

private:
    void* added(void* block)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (block && GetCurrentThreadId() == m_thread)
            m_blocks.insert(block);
        return block;
    }
    void* removed(void* block)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_blocks.erase(block);
        return block;
    }

    std::mutex m_mutex;
    std::set<void*> m_blocks;
    DWORD m_thread = GetCurrentThreadId();
};

/** Never taken back: the system calls it as long as there is a block that it has heard of. */
Spy& spy()
{
    static Spy* const spy = [] {
        auto* made = new Spy;
        if (FAILED(CoRegisterMallocSpy(made)))
            qFatal("the task memory cannot be watched");
        return made;
    }();
    return *spy;
}

} // namespace

int livingTaskMemory()
{
    return spy().living();
}

} // namespace Zorvane::Testing
