#pragma once

#include "Files/Portable/SystemCalls.h"

#include <cerrno>
#include <functional>
#include <string>
#include <vector>

namespace Zorvane::Testing {

/** The real system with a hand in between: every call can be watched, preceded or failed. */
class FaultySystem
{
public:
    struct Call
    {
        std::string name;
        int index;     /**< Among all calls. */
        int sameIndex; /**< Among those of the name. */
    };

    FaultySystem();

    FaultySystem(const FaultySystem&) = delete;
    FaultySystem& operator=(const FaultySystem&) = delete;

    /** Returns the error to fail with instead of calling; 0 to call. */
    std::function<int(const Call&)> before;
    std::vector<Call> log;
    SystemCalls calls;

    int countOf(const std::string& name) const;

    /** Fails the call of the name that comes as the given one, counted from 0, with the error. */
    void failOnce(const std::string& name, int error, int sameIndex = 0);
    /** Fails each call of the name. */
    void failAlways(const std::string& name, int error);

    /** Does something before the first call of the name. */
    void beforeFirst(const std::string& name, const std::function<void()>& doing);

    /** Takes features away, so that the engine falls back on others. */
    void removeUnnamedFiles() { calls.unnamedFileFlags = 0; }
    void removeNoReplaceRename() { failFeature(calls.renameNoReplace); }
    void removeHardLinks() { failFeature(calls.link); }
    void removeGroupFlush()
    {
        calls.isFileSystemFlushReliable = [](int) { return false; };
    }
    /** Holes of sparse files are read as zeros. */
    void removeHoles()
    {
        calls.seek = [](int, off_t, int) { return errno = EINVAL, off_t(-1); };
    }
    void removeRangeCopy() { failFeature(calls.copyRange); }
    void removeWriteback()
    {
        failFeature(calls.startWriteback);
        failFeature(calls.finishWriteback);
    }

    /** Data needs not survive a power cut: for tests that copy hundreds of times. */
    void dontWaitForDisks();

private:
    int announce(const char* name);

    template <typename Result, typename... Arguments>
    void wrap(std::function<Result(Arguments...)>& entry, const char* name)
    {
        entry = [this, name, real = entry](Arguments... arguments) -> Result {
            if (const int error = announce(name)) {
                errno = error;
                return Result(-1);
            }
            return real(arguments...);
        };
    }

    template <typename Result, typename... Arguments>
    static void failFeature(std::function<Result(Arguments...)>& entry)
    {
        entry = [](Arguments...) -> Result {
            errno = ENOSYS;
            return Result(-1);
        };
    }
};

} // namespace Zorvane::Testing
