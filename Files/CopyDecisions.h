#pragma once

#include "Files/CopyNames.h"
#include "Files/CopyQuestions.h"
#include "UiToolsExport.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Zorvane {

/** A source that can be copied, as planning found it. */
struct CopyCandidate
{
    std::string leaf; /**< The name that the copy should get. */
    CopyFileFacts source;
    /** What has the name in the target folder, and in which way. */
    std::optional<CopyFileFacts> existing;
    CollisionKind existingKind = CollisionKind::ExistingFile;
};

/** What shall be done with a candidate. */
struct CopyOrder
{
    enum class Action
    {
        CopyNew,  /**< Give it `leaf`, which nothing else has. */
        Replace,  /**< Give it `leaf` in place of the existing file. */
        Skip,     /**< The user's word. */
        SameFile, /**< Leave it: the name leads to the source. */
    };
    Action action = Action::CopyNew;
    std::string leaf;
    bool keepsBoth = false; /**< `leaf` is a name made up because the wanted one is taken. */
};

/**
 * Turns collisions into orders by asking, and remembers answers that hold for all. The names given
 * are unique among themselves and against the target folder, also where case doesn't count.
 */
class ZORVANE_UITOOLS_EXPORT CopyDecisions
{
public:
    /**
     * `onDisk` answers whether the target folder has a name; `goOn` is called for each candidate
     * and cancels by false. All three are used as long as this lives.
     */
    CopyDecisions(CopyQuestions& questions, NameIsTaken onDisk, std::function<bool()> goOn,
                  std::size_t mostNameBytes);

    /** One order a candidate; nothing if the user cancelled. */
    std::optional<std::vector<CopyOrder>>
    decideAll(const std::vector<const CopyCandidate*>& candidates);

    /**
     * The order for a candidate whose name turned out to be taken when the copy was complete, with
     * so many files still to come. What was answered for all while planning does not count, since
     * this file was not there to be decided upon; what was answered for all to such a late
     * question does.
     */
    std::optional<CopyOrder> decideLate(const CopyCandidate& candidate, int filesToCome);

    /** A further made-up name, for the case that the last one was taken meanwhile. */
    std::string anotherName(const std::string& leaf);

private:
    using AnswersForAll = std::array<std::optional<CopyDecision>, collisionKindCount>;

    /** What is known of a name that candidates should get. */
    struct Wanted
    {
        std::array<int, collisionKindCount> toCome{}; // candidates not decided yet
        const CopyCandidate* claimedBy = nullptr;     // the one that gets it
        unsigned number = 2;                          // of "Keep Both"; smaller ones are taken
    };

    bool count(const std::vector<const CopyCandidate*>& candidates);
    std::optional<CopyOrder> decide(const CopyCandidate& candidate);
    static std::optional<CollisionKind> kindOf(const Wanted& wanted,
                                               const CopyCandidate& candidate);
    void claim(Wanted& wanted, const CopyCandidate& candidate);
    CopyDecision answerTo(CopyCollision& collision, const std::string& leaf, AnswersForAll& known);
    CopyOrder orderFor(const CopyCandidate& candidate, CollisionKind kind, CopyDecision decision);

    CopyQuestions& m_questions;
    NameIsTaken m_onDisk;
    std::function<bool()> m_goOn;
    std::size_t m_mostNameBytes;
    AnswersForAll m_forAll;
    AnswersForAll m_forAllLate;
    std::array<int, collisionKindCount> m_remaining{};
    std::unordered_map<std::string, Wanted> m_names; // by leaf
    std::unordered_set<std::string> m_taken;         // folded: no made-up name may be one of them
};

} // namespace Zorvane
