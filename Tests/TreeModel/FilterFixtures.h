#pragma once

#include "TreeModel/ModelItemFilterInterface.h"

#include <string>
#include <utility>

namespace Zorvane::Testing {

/** Gives one answer and notes, in a log shared with others, what it is asked. */
class NotingFilter : public GenericTreeViewModelHandling::ModelItemFilterInterface
{
public:
    NotingFilter(std::string name, bool answer, std::string& log)
        : m_name(std::move(name))
        , m_answer(answer)
        , m_log(log)
    {}

    bool accept(const GUIdentifier&) override { return note("gui"); }
    bool accept(const Identifier&) override { return note("id"); }
    bool accept(const IDCombiner&) override { return note("combined"); }
    void beginFiltering() override { note("begin"); }
    void endFiltering() override { note("end"); }
    Signals::Connection connectToChanged(const Signals::Slot<void()>& slot) override
    {
        return changed.connect(slot);
    }

    Signals::Signal<void()> changed;

private:
    bool note(const char* what)
    {
        m_log += m_name + "." + what + " ";
        return m_answer;
    }

    std::string m_name;
    bool m_answer;
    std::string& m_log;
};

} // namespace Zorvane::Testing
