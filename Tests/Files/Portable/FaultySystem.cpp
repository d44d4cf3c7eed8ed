#include "Tests/Files/Portable/FaultySystem.h"

#include <algorithm>

namespace Zorvane::Testing {

FaultySystem::FaultySystem()
    : calls(SystemCalls::real())
{
    wrap(calls.openAt, "open");
    calls.close = [this](int file) {
        // A close that fails has closed the file all the same.
        const int error = announce("close");
        const int result = SystemCalls::real().close(file);
        errno = error != 0 ? error : errno;
        return error != 0 ? -1 : result;
    };
    wrap(calls.read, "read");
    wrap(calls.write, "write");
    wrap(calls.copyRange, "copyRange");
    wrap(calls.seek, "seek");
    wrap(calls.lock, "lock");
    wrap(calls.status, "status");
    wrap(calls.statusAt, "statusAt");
    wrap(calls.setMode, "setMode");
    wrap(calls.setTimes, "setTimes");
    wrap(calls.setSize, "setSize");
    wrap(calls.startWriteback, "startWriteback");
    wrap(calls.finishWriteback, "finishWriteback");
    wrap(calls.flush, "flush");
    wrap(calls.flushFileSystem, "flushFileSystem");
    wrap(calls.rename, "rename");
    wrap(calls.renameNoReplace, "renameNoReplace");
    wrap(calls.link, "link");
    wrap(calls.linkUnnamed, "linkUnnamed");
    wrap(calls.unlink, "unlink");
    // What other programs have not written yet must not decide which way a test takes.
    calls.unwrittenBytes = [] { return 0; };
}

int FaultySystem::countOf(const std::string& name) const
{
    return static_cast<int>(
        std::count_if(log.begin(), log.end(), [&](const Call& call) { return call.name == name; }));
}

void FaultySystem::failOnce(const std::string& name, int error, int sameIndex)
{
    before = [=](const Call& call) {
        return call.name == name && call.sameIndex == sameIndex ? error : 0;
    };
}

void FaultySystem::failAlways(const std::string& name, int error)
{
    before = [=](const Call& call) { return call.name == name ? error : 0; };
}

void FaultySystem::beforeFirst(const std::string& name, const std::function<void()>& doing)
{
    before = [=](const Call& call) {
        if (call.name == name && call.sameIndex == 0)
            doing();
        return 0;
    };
}

void FaultySystem::dontWaitForDisks()
{
    const auto onlyAnnounce = [this](const char* name) {
        const int error = announce(name);
        errno = error != 0 ? error : errno;
        return error != 0 ? -1 : 0;
    };
    calls.flush = [=](int) { return onlyAnnounce("flush"); };
    calls.flushFileSystem = [=](int) { return onlyAnnounce("flushFileSystem"); };
    calls.startWriteback = [=](int, off_t, off_t) { return onlyAnnounce("startWriteback"); };
    calls.finishWriteback = [=](int, off_t, off_t) { return onlyAnnounce("finishWriteback"); };
}

int FaultySystem::announce(const char* name)
{
    log.push_back({name, static_cast<int>(log.size()), countOf(name)});
    return before ? before(log.back()) : 0;
}

} // namespace Zorvane::Testing
