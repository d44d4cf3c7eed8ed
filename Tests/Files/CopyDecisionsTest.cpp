#include "Files/CopyDecisions.h"

#include "Tests/Files/ScriptedCopy.h"
#include "Tests/Support/TestCase.h"

#include <set>

using namespace Zorvane;
using Action = CopyOrder::Action;

namespace {

CopyCandidate newFile(const std::string& leaf)
{
    CopyCandidate candidate;
    candidate.leaf = leaf;
    candidate.source.path = QStringLiteral("from/") + QString::fromStdString(leaf);
    return candidate;
}

CopyCandidate taken(const std::string& leaf, CollisionKind kind = CollisionKind::ExistingFile)
{
    CopyCandidate candidate = newFile(leaf);
    candidate.existing = CopyFileFacts{QStringLiteral("to/") + QString::fromStdString(leaf), 1, {}};
    candidate.existingKind = kind;
    return candidate;
}

/** Decides with these answers; the target folder has no other names than the candidates'. */
struct Decision
{
    explicit Decision(std::deque<CopyAnswer> answers) { questions.answers = std::move(answers); }

    std::optional<std::vector<CopyOrder>> of(std::vector<CopyCandidate> candidates)
    {
        m_candidates = std::move(candidates);
        std::vector<const CopyCandidate*> pointers;
        for (const CopyCandidate& candidate : m_candidates)
            pointers.push_back(&candidate);
        return decisions.decideAll(pointers);
    }

    Testing::ScriptedQuestions questions;
    int steps = 0;
    int cancelAt = -1;
    CopyDecisions decisions{questions, [](const std::string&) { return false; },
                            [this] { return steps++ != cancelAt; }, 255};

private:
    std::vector<CopyCandidate> m_candidates;
};

} // namespace

class CopyDecisionsTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void freeNamesAreNotAskedAbout();
    void forAllHoldsForItsKindOnly();
    void replaceForAllDoesNotReachOtherKinds_data();
    void replaceForAllDoesNotReachOtherKinds();
    void skippedNameIsFreeForTheNext();
    void keptBothNamesDifferAlsoByCase();
    void cancelEndsTheQuestions();
    void equalNames_areOfferedForAll_data();
    void equalNames_areOfferedForAll();
    void replacedName_leavesTheRestToItsOwnKind();
    void protectedFile_needsAnAnswerOfItsOwn();
    void manyCandidates_canBeCancelledInBetween();
    void lateQuestionIgnoresForAll();
    void lateQuestions_areOfferedForAll();
};

void CopyDecisionsTest::freeNamesAreNotAskedAbout()
{
    Decision decision({});
    const auto orders = decision.of({newFile("a"), newFile("b")});
    QVERIFY(decision.questions.asked.empty());
    QCOMPARE(orders->at(0).action, Action::CopyNew);
    QCOMPARE(orders->at(1).leaf, std::string("b"));
}

void CopyDecisionsTest::forAllHoldsForItsKindOnly()
{
    Decision decision({{CopyDecision::Replace, true}, {CopyDecision::KeepBoth, true}});
    const auto orders = decision.of({taken("a"), taken("s", CollisionKind::SameFile), taken("b"),
                                     taken("t", CollisionKind::SameFile), taken("c")});
    QCOMPARE(int(decision.questions.asked.size()), 2);
    QCOMPARE(decision.questions.asked[0].remaining, 2);
    QCOMPARE(decision.questions.asked[1].remaining, 1);
    QCOMPARE(orders->at(4).action, Action::Replace);
    QCOMPARE(orders->at(3).leaf, std::string("t (2)"));
}

void CopyDecisionsTest::replaceForAllDoesNotReachOtherKinds_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("same file") << int(CollisionKind::SameFile);
    QTest::newRow("folder") << int(CollisionKind::NotAFile);
}

void CopyDecisionsTest::replaceForAllDoesNotReachOtherKinds()
{
    QFETCH(int, kind);
    Decision decision({{CopyDecision::Replace, true}, {CopyDecision::Replace, true}});
    const auto orders = decision.of({taken("a"), taken("b", static_cast<CollisionKind>(kind)),
                                     taken("c", static_cast<CollisionKind>(kind))});
    QCOMPARE(orders->at(0).action, Action::Replace);
    QVERIFY(orders->at(1).action != Action::Replace);
    QVERIFY(orders->at(2).action != Action::Replace);
}

void CopyDecisionsTest::skippedNameIsFreeForTheNext()
{
    Decision decision({{CopyDecision::Skip, false}, {CopyDecision::Replace, false}});
    const auto orders = decision.of({taken("a"), taken("a")});
    QCOMPARE(decision.questions.asked.at(1).kind, CollisionKind::ExistingFile);
    QCOMPARE(orders->at(0).action, Action::Skip);
    QCOMPARE(orders->at(1).action, Action::Replace);
}

void CopyDecisionsTest::keptBothNamesDifferAlsoByCase()
{
    Decision decision({{CopyDecision::KeepBoth, true}});
    const auto orders = decision.of({taken("a"), taken("A"), newFile("A (4)")});
    QCOMPARE(orders->at(0).leaf, std::string("a (2)"));
    QCOMPARE(orders->at(1).leaf, std::string("A (3)"));
    QVERIFY(orders->at(0).keepsBoth);
    QCOMPARE(decision.questions.asked.at(0).keepBothName, QStringLiteral("a (2)"));
}

void CopyDecisionsTest::cancelEndsTheQuestions()
{
    Decision decision({{CopyDecision::Cancel, false}});
    QVERIFY(!decision.of({taken("a"), taken("b")}));
    QCOMPARE(int(decision.questions.asked.size()), 1);
}

void CopyDecisionsTest::equalNames_areOfferedForAll_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<int>("decision");
    QTest::newRow("existing file, skip") << true << int(CopyDecision::Skip);
    QTest::newRow("existing file, keep both") << true << int(CopyDecision::KeepBoth);
    QTest::newRow("free name, skip") << false << int(CopyDecision::Skip);
    QTest::newRow("free name, keep both") << false << int(CopyDecision::KeepBoth);
}

void CopyDecisionsTest::equalNames_areOfferedForAll()
{
    QFETCH(bool, exists);
    QFETCH(int, decision);
    constexpr int count = 300;
    Decision test({{static_cast<CopyDecision>(decision), true}});
    const auto orders = test.of(
        std::vector<CopyCandidate>(count, exists ? taken("part.stl") : newFile("part.stl")));
    QCOMPARE(int(test.questions.asked.size()), 1);
    // The first of a free name needs no question.
    QCOMPARE(test.questions.asked[0].remaining, exists ? count - 1 : count - 2);
    std::set<std::string> names;
    for (const CopyOrder& order : *orders)
        names.insert(order.leaf);
    const bool keepsAll = decision == int(CopyDecision::KeepBoth);
    QCOMPARE(int(names.size()), keepsAll ? count : 1);
}

void CopyDecisionsTest::replacedName_leavesTheRestToItsOwnKind()
{
    Decision decision({{CopyDecision::Replace, true}, {CopyDecision::Skip, true}});
    const auto orders = decision.of({taken("a"), taken("a"), taken("a"), taken("b")});
    QCOMPARE(int(decision.questions.asked.size()), 2);
    QCOMPARE(decision.questions.asked[0].remaining, 3);
    QCOMPARE(decision.questions.asked[1].kind, CollisionKind::WithinBatch);
    QCOMPARE(decision.questions.asked[1].remaining, 1);
    QCOMPARE(orders->at(2).action, Action::Skip);
    QCOMPARE(orders->at(3).action, Action::Replace);
}

void CopyDecisionsTest::protectedFile_needsAnAnswerOfItsOwn()
{
    Decision decision({{CopyDecision::Replace, true}, {CopyDecision::Replace, true}});
    const auto orders = decision.of({taken("a"), taken("p", CollisionKind::ProtectedFile),
                                     taken("b"), taken("q", CollisionKind::ProtectedFile)});
    QCOMPARE(int(decision.questions.asked.size()), 2);
    QCOMPARE(decision.questions.asked[1].remaining, 1);
    QCOMPARE(orders->at(3).action, Action::Replace);
}

void CopyDecisionsTest::manyCandidates_canBeCancelledInBetween()
{
    for (const int cancelAt : {0, 150, 250}) {
        Decision decision({});
        decision.cancelAt = cancelAt;
        std::vector<CopyCandidate> candidates;
        for (int i = 0; i < 200; ++i)
            candidates.push_back(newFile(std::to_string(i)));
        QVERIFY(!decision.of(candidates));
        QCOMPARE(decision.steps, cancelAt + 1);
    }
}

void CopyDecisionsTest::lateQuestionIgnoresForAll()
{
    Decision decision({{CopyDecision::Replace, true}, {CopyDecision::Skip, false}});
    decision.of({taken("a"), newFile("b")});
    const auto order = decision.decisions.decideLate(taken("b"), 0);
    QCOMPARE(int(decision.questions.asked.size()), 2);
    QCOMPARE(order->action, Action::Skip);
}

void CopyDecisionsTest::lateQuestions_areOfferedForAll()
{
    Decision decision({{CopyDecision::Skip, true}, {CopyDecision::KeepBoth, true}});
    decision.of({newFile("a"), newFile("b"), newFile("c"), newFile("d")});
    QCOMPARE(decision.decisions.decideLate(taken("a"), 3)->action, Action::Skip);
    QCOMPARE(decision.questions.asked[0].remaining, 3);
    QVERIFY(decision.questions.asked[0].isLate);
    QCOMPARE(decision.decisions.decideLate(taken("b"), 2)->action, Action::Skip);
    // Another kind, another question.
    const CopyCandidate folder = taken("c", CollisionKind::NotAFile);
    QCOMPARE(decision.decisions.decideLate(folder, 1)->leaf, std::string("c (2)"));
    QCOMPARE(int(decision.questions.asked.size()), 2);
}

ZORVANE_TEST(CopyDecisionsTest)
#include "CopyDecisionsTest.moc"
