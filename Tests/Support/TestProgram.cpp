#include "Tests/Support/TestCase.h"

#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace Zorvane::Testing {

namespace {

using Run = int (*)(int argc, char** argv);
using ChildRun = std::optional<int> (*)(int argc, char** argv);

std::map<std::string, Run>& testClasses()
{
    static std::map<std::string, Run> classes;
    return classes;
}

std::vector<ChildRun>& childProcesses()
{
    static std::vector<ChildRun> runs;
    return runs;
}

int printUsage(const char* program)
{
    std::fprintf(stderr, "Usage: %s CLASS [option of Qt Test...], with one of the classes\n",
                 program);
    for (const auto& [name, run] : testClasses())
        std::fprintf(stderr, "  %s\n", name.c_str());
    return 2;
}

} // namespace

TestClass::TestClass(const char* name, int (*run)(int argc, char** argv))
{
    testClasses().emplace(name, run);
}

ChildProcess::ChildProcess(std::optional<int> (*run)(int argc, char** argv))
{
    childProcesses().push_back(run);
}

} // namespace Zorvane::Testing

int main(int argc, char** argv)
{
    using namespace Zorvane::Testing;
    for (const ChildRun run : childProcesses()) {
        if (const std::optional<int> result = run(argc, argv))
            return *result;
    }
    const auto found = argc > 1 ? testClasses().find(argv[1]) : testClasses().end();
    if (found == testClasses().end())
        return printUsage(argv[0]);
    // Qt Test gets the arguments without the name of the class.
    std::vector<char*> arguments(argv, argv + argc);
    arguments.erase(arguments.begin() + 1);
    const int count = int(arguments.size());
    arguments.push_back(nullptr);
    return found->second(count, arguments.data());
}
