#pragma once

#include "Files/CopyProgress.h"
#include "Files/CopyQuestions.h"

#include <QtCore/QStringList>

#include <deque>
#include <functional>
#include <vector>

namespace Zorvane::Testing {

/** Answers from a list, `fallback` after its end, and keeps what was asked and told. */
class ScriptedQuestions : public CopyQuestions
{
public:
    std::deque<CopyAnswer> answers;
    CopyAnswer fallback{CopyDecision::Skip, false};
    std::function<void(const CopyCollision&)> onAsk;
    std::vector<CopyCollision> asked;
    QList<CopyFailure> told;

    CopyAnswer ask(const CopyCollision& collision) override
    {
        asked.push_back(collision);
        if (onAsk)
            onAsk(collision);
        if (answers.empty())
            return fallback;
        const CopyAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void tellFailures(const QList<CopyFailure>& failures) override { told += failures; }
};

/** Keeps the states; cancels from the given one on, counted from 0. */
class ScriptedProgress : public CopyProgress
{
public:
    int cancelAt = -1;
    std::vector<CopyProgressState> states;

    bool goOn(const CopyProgressState& state) override
    {
        states.push_back(state);
        return cancelAt < 0 || static_cast<int>(states.size()) <= cancelAt;
    }
};

} // namespace Zorvane::Testing
