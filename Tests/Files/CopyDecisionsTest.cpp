#include "Files/CopyDecisions.h"

#include "Tests/Files/ScriptedCopy.h"
#include "Tests/Support/TestCase.h"

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

    std::optional<std::vector<CopyOrder>> of(const std::vector<CopyCandidate>& candidates)
    {
        return decisions.decideAll(candidates);
    }

    Testing::ScriptedQuestions questions;
    CopyDecisions decisions{questions, [](const std::string&) { return false; }, 255};
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
    void lateQuestionIgnoresForAll();
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

void CopyDecisionsTest::lateQuestionIgnoresForAll()
{
    Decision decision({{CopyDecision::Replace, true}, {CopyDecision::Skip, false}});
    decision.of({taken("a"), newFile("b")});
    const auto order = decision.decisions.decideLate(taken("b"));
    QCOMPARE(int(decision.questions.asked.size()), 2);
    QCOMPARE(order->action, Action::Skip);
}

ZORVANE_TEST(CopyDecisionsTest)
#include "CopyDecisionsTest.moc"
