#pragma once

#include "Files/CopyNames.h"
#include "Files/CopyQuestions.h"
#include "UiToolsExport.h"

#include <array>
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
    /** `onDisk` tells whether the target folder has a name. Both are used as long as this lives. */
    CopyDecisions(CopyQuestions& questions, NameIsTaken onDisk, std::size_t mostNameBytes);

    /** One order a candidate; nothing if the user cancelled. */
    std::optional<std::vector<CopyOrder>> decideAll(const std::vector<CopyCandidate>& candidates);

    /**
     * The order for a candidate whose name turned out to be taken when the copy was complete. What
     * was answered for all before does not count: this file was not there to be decided upon.
     */
    std::optional<CopyOrder> decideLate(const CopyCandidate& candidate);

    /** A further made-up name, for the case that the last one was taken meanwhile. */
    std::string anotherName(const std::string& leaf);

private:
    static constexpr std::size_t s_kindCount = 4;

    CopyCollision collisionOf(const std::vector<CopyCandidate>& candidates, std::size_t index,
                              CollisionKind kind);
    CopyAnswer answerTo(const CopyCollision& collision);
    CopyOrder orderFor(const CopyCandidate& candidate, CollisionKind kind, CopyDecision decision);
    std::optional<CollisionKind> kindOf(const CopyCandidate& candidate) const;
    void countCollisions(const std::vector<CopyCandidate>& candidates);
    void claim(const std::string& leaf, std::size_t index);

    CopyQuestions& m_questions;
    NameIsTaken m_onDisk;
    std::size_t m_mostNameBytes;
    std::array<std::optional<CopyDecision>, s_kindCount> m_forAll;
    std::array<int, s_kindCount> m_remaining{};
    std::unordered_map<std::string, std::size_t> m_claimedBy; // leaf to candidate
    std::unordered_set<std::string> m_wanted; // folded: no made-up name may take them
};

} // namespace Zorvane
