#include "Files/CopyDecisions.h"

#include "Files/PathText.h"

#include <string_view>
#include <utility>

namespace Zorvane {

namespace {

std::size_t slotOf(CollisionKind kind)
{
    return static_cast<std::size_t>(kind);
}

} // namespace

CopyDecisions::CopyDecisions(CopyQuestions& questions, NameIsTaken onDisk,
                             std::size_t mostNameBytes)
    : m_questions(questions)
    , m_onDisk(std::move(onDisk))
    , m_mostNameBytes(mostNameBytes)
{}

std::optional<std::vector<CopyOrder>>
CopyDecisions::decideAll(const std::vector<CopyCandidate>& candidates)
{
    countCollisions(candidates);
    std::vector<CopyOrder> orders;
    orders.reserve(candidates.size());
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        CopyOrder order{CopyOrder::Action::CopyNew, candidates[i].leaf, false};
        if (const auto kind = kindOf(candidates[i])) {
            const CopyAnswer answer = answerTo(collisionOf(candidates, i, *kind));
            if (answer.decision == CopyDecision::Cancel)
                return std::nullopt;
            order = orderFor(candidates[i], *kind, answer.decision);
        }
        if (order.action == CopyOrder::Action::CopyNew ||
            order.action == CopyOrder::Action::Replace)
            claim(order.leaf, i);
        orders.push_back(std::move(order));
    }
    return orders;
}

std::optional<CopyOrder> CopyDecisions::decideLate(const CopyCandidate& candidate)
{
    CopyCollision collision;
    collision.kind = candidate.existingKind;
    collision.source = candidate.source;
    collision.target = candidate.existing.value_or(CopyFileFacts{});
    collision.keepBothName = pathFromBytes(anotherName(candidate.leaf));
    const CopyDecision decision = m_questions.ask(collision).decision;
    if (decision == CopyDecision::Cancel)
        return std::nullopt;
    const bool allowed = collision.allows(decision);
    return orderFor(candidate, collision.kind, allowed ? decision : CopyDecision::Skip);
}

std::string CopyDecisions::anotherName(const std::string& leaf)
{
    return keepBothName(leaf, m_mostNameBytes, [this](const std::string& name) {
        return m_wanted.count(foldedName(name)) != 0 || m_onDisk(name);
    });
}

CopyCollision CopyDecisions::collisionOf(const std::vector<CopyCandidate>& candidates,
                                         std::size_t index, CollisionKind kind)
{
    const CopyCandidate& candidate = candidates[index];
    CopyCollision collision;
    collision.kind = kind;
    collision.source = candidate.source;
    if (kind == CollisionKind::WithinBatch)
        collision.target = candidates[m_claimedBy.at(candidate.leaf)].source;
    else
        collision.target = candidate.existing.value_or(CopyFileFacts{});
    collision.remaining = m_remaining[slotOf(kind)] > 0 ? --m_remaining[slotOf(kind)] : 0;
    if (!m_forAll[slotOf(kind)])
        collision.keepBothName = pathFromBytes(anotherName(candidate.leaf));
    return collision;
}

CopyAnswer CopyDecisions::answerTo(const CopyCollision& collision)
{
    std::optional<CopyDecision>& known = m_forAll[slotOf(collision.kind)];
    if (known)
        return {*known, true};
    CopyAnswer answer = m_questions.ask(collision);
    if (!collision.allows(answer.decision))
        answer.decision = CopyDecision::Skip;
    if (answer.forAll)
        known = answer.decision;
    return answer;
}

CopyOrder CopyDecisions::orderFor(const CopyCandidate& candidate, CollisionKind kind,
                                  CopyDecision decision)
{
    switch (decision) {
    case CopyDecision::Replace:
        return {CopyOrder::Action::Replace, candidate.leaf, false};
    case CopyDecision::KeepBoth: {
        CopyOrder order{CopyOrder::Action::CopyNew, anotherName(candidate.leaf), true};
        m_wanted.insert(foldedName(order.leaf));
        return order;
    }
    case CopyDecision::Skip:
    case CopyDecision::Cancel:
        break;
    }
    const bool same = kind == CollisionKind::SameFile;
    return {same ? CopyOrder::Action::SameFile : CopyOrder::Action::Skip, candidate.leaf, false};
}

std::optional<CollisionKind> CopyDecisions::kindOf(const CopyCandidate& candidate) const
{
    if (m_claimedBy.count(candidate.leaf) != 0)
        return CollisionKind::WithinBatch;
    if (candidate.existing)
        return candidate.existingKind;
    return std::nullopt;
}

void CopyDecisions::countCollisions(const std::vector<CopyCandidate>& candidates)
{
    std::unordered_set<std::string_view> seen;
    seen.reserve(candidates.size());
    m_wanted.reserve(candidates.size());
    m_claimedBy.reserve(candidates.size());
    for (const CopyCandidate& candidate : candidates) {
        const bool first = seen.insert(candidate.leaf).second;
        m_wanted.insert(foldedName(candidate.leaf));
        if (!first)
            ++m_remaining[slotOf(CollisionKind::WithinBatch)];
        else if (candidate.existing)
            ++m_remaining[slotOf(candidate.existingKind)];
    }
}

void CopyDecisions::claim(const std::string& leaf, std::size_t index)
{
    m_claimedBy.emplace(leaf, index);
}

} // namespace Zorvane
