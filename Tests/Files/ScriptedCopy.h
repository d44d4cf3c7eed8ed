#pragma once

#include "Files/CopyProgress.h"
#include "Files/CopyQuestions.h"

#include <QtCore/QStringList>

#include <deque>
#include <functional>
#include <utility>
#include <vector>

namespace Zorvane::Testing {

/** Answers from a list, `fallback` after its end, and keeps what was asked and reported. */
class ScriptedQuestions : public CopyQuestions
{
public:
    std::deque<CopyAnswer> answers;
    CopyAnswer fallback{CopyDecision::Skip, false};
    std::function<void(const CopyCollision&)> onAsk;
    std::vector<CopyCollision> asked;
    bool copiesInSpiteOfSpace = false;
    std::vector<std::pair<qint64, qint64>> spaceAsked; /**< Bytes needed and free. */
    QList<CopyRemark> failures;
    QList<CopyRemark> remarks;

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
    bool copyInSpiteOfSpace(qint64 bytesNeeded, qint64 bytesFree) override
    {
        spaceAsked.emplace_back(bytesNeeded, bytesFree);
        return copiesInSpiteOfSpace;
    }
    void report(const QList<CopyRemark>& failed, const QList<CopyRemark>& toKnow) override
    {
        failures += failed;
        remarks += toKnow;
    }
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
