#include "Files/CopyDecisions.h"

#include "Files/PathText.h"

#include <algorithm>
#include <utility>

namespace Zorvane {

namespace {

constexpr std::size_t slotOf(CollisionKind kind)
{
    return static_cast<std::size_t>(kind);
}

/** As long as no earlier candidate replaces what has the name. */
CollisionKind expectedKindOf(const CopyCandidate& candidate)
{
    return candidate.existing ? candidate.existingKind : CollisionKind::WithinBatch;
}

} // namespace

CopyDecisions::CopyDecisions(CopyQuestions& questions, NameIsTaken onDisk,
                             std::function<bool()> goOn, std::size_t mostNameBytes)
    : m_questions(questions)
    , m_onDisk(std::move(onDisk))
    , m_goOn(std::move(goOn))
    , m_mostNameBytes(mostNameBytes)
{}

std::optional<std::vector<CopyOrder>>
CopyDecisions::decideAll(const std::vector<const CopyCandidate*>& candidates)
{
    if (!count(candidates))
        return std::nullopt;
    std::vector<CopyOrder> orders;
    orders.reserve(candidates.size());
    for (const CopyCandidate* candidate : candidates) {
        std::optional<CopyOrder> order;
        if (m_goOn())
            order = decide(*candidate);
        if (!order)
            return std::nullopt;
        orders.push_back(std::move(*order));
    }
    return orders;
}

std::optional<CopyOrder> CopyDecisions::decide(const CopyCandidate& candidate)
{
    Wanted& wanted = m_names[candidate.leaf];
    const auto kind = kindOf(wanted, candidate);
    --wanted.toCome[slotOf(kind.value_or(CollisionKind::WithinBatch))];
    if (!kind) {
        claim(wanted, candidate);
        return CopyOrder{CopyOrder::Action::CopyNew, candidate.leaf, false};
    }
    int& remaining = m_remaining[slotOf(*kind)];
    remaining = std::max(remaining - 1, 0);
    CopyCollision collision;
    collision.kind = *kind;
    collision.source = candidate.source;
    collision.target = wanted.claimedBy ? wanted.claimedBy->source : *candidate.existing;
    collision.remaining = remaining;
    const CopyDecision decision = answerTo(collision, candidate.leaf, m_forAll);
    if (decision == CopyDecision::Cancel)
        return std::nullopt;
    if (decision == CopyDecision::Replace)
        claim(wanted, candidate);
    return orderFor(candidate, *kind, decision);
}

std::optional<CopyOrder> CopyDecisions::decideLate(const CopyCandidate& candidate, int filesToCome)
{
    CopyCollision collision;
    collision.kind = candidate.existingKind;
    collision.source = candidate.source;
    collision.target = candidate.existing.value_or(CopyFileFacts{});
    collision.remaining = filesToCome;
    collision.isLate = true;
    const CopyDecision decision = answerTo(collision, candidate.leaf, m_forAllLate);
    if (decision == CopyDecision::Cancel)
        return std::nullopt;
    return orderFor(candidate, collision.kind, decision);
}

std::string CopyDecisions::anotherName(const std::string& leaf)
{
    const auto isTaken = [this](const std::string& name) {
        m_goOn();
        return m_taken.count(foldedName(name)) != 0 || m_onDisk(name);
    };
    return keepBothName(leaf, m_mostNameBytes, isTaken, m_names[leaf].number);
}

CopyDecision CopyDecisions::answerTo(CopyCollision& collision, const std::string& leaf,
                                     AnswersForAll& known)
{
    std::optional<CopyDecision>& forAll = known[slotOf(collision.kind)];
    if (forAll)
        return *forAll;
    collision.keepBothName = pathFromBytes(anotherName(leaf));
    CopyAnswer answer = m_questions.ask(collision);
    if (!collision.allows(answer.decision))
        answer.decision = CopyDecision::Skip;
    if (answer.forAll)
        forAll = answer.decision;
    return answer.decision;
}

CopyOrder CopyDecisions::orderFor(const CopyCandidate& candidate, CollisionKind kind,
                                  CopyDecision decision)
{
    switch (decision) {
    case CopyDecision::Replace:
        return {CopyOrder::Action::Replace, candidate.leaf, false};
    case CopyDecision::KeepBoth: {
        CopyOrder order{CopyOrder::Action::CopyNew, anotherName(candidate.leaf), true};
        m_taken.insert(foldedName(order.leaf));
        return order;
    }
    case CopyDecision::Skip:
    case CopyDecision::Cancel:
        break;
    }
    const bool same = kind == CollisionKind::SameFile;
    return {same ? CopyOrder::Action::SameFile : CopyOrder::Action::Skip, candidate.leaf, false};
}

std::optional<CollisionKind> CopyDecisions::kindOf(const Wanted& wanted,
                                                   const CopyCandidate& candidate)
{
    if (wanted.claimedBy)
        return CollisionKind::WithinBatch;
    if (candidate.existing)
        return candidate.existingKind;
    return std::nullopt;
}

bool CopyDecisions::count(const std::vector<const CopyCandidate*>& candidates)
{
    m_taken.reserve(candidates.size());
    m_names.reserve(candidates.size());
    for (const CopyCandidate* candidate : candidates) {
        if (!m_goOn())
            return false;
        m_taken.insert(foldedName(candidate->leaf));
        const std::size_t slot = slotOf(expectedKindOf(*candidate));
        const bool isFirst = m_names[candidate->leaf].toCome[slot]++ == 0;
        if (candidate->existing || !isFirst)
            ++m_remaining[slot];
    }
    return true;
}

/** A later candidate for the name collides with this one, not with an existing file. */
void CopyDecisions::claim(Wanted& wanted, const CopyCandidate& candidate)
{
    wanted.claimedBy = &candidate;
    constexpr std::size_t within = slotOf(CollisionKind::WithinBatch);
    for (std::size_t slot = 0; slot < collisionKindCount; ++slot) {
        const int moved = slot == within ? 0 : std::exchange(wanted.toCome[slot], 0);
        m_remaining[slot] -= moved;
        m_remaining[within] += moved;
        wanted.toCome[within] += moved;
    }
}

} // namespace Zorvane
