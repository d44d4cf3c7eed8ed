#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Design/DesignFiles.h"
#include "Workbench/Design/DesignReader.h"
#include "Workbench/Design/DesignWriter.h"

#include <QtCore/QJsonDocument>

#include <rapidcheck.h>

using namespace Zorvane::Testing;
using namespace Zorvane::Workbench;

namespace {

const QString file = QStringLiteral("/designs/small.dsg");

QByteArray mutated(QByteArray text)
{
    const int changes = *rc::gen::inRange(1, 8);
    for (int i = 0; i < changes && !text.isEmpty(); ++i) {
        const int at = *rc::gen::inRange(0, text.size());
        const int kind = *rc::gen::inRange(0, 4);
        const int length = *rc::gen::inRange(1, 40);
        if (kind == 0)
            text[at] = static_cast<char>(*rc::gen::inRange(0, 256));
        else if (kind == 1)
            text.remove(at, length);
        else if (kind == 2)
            text.insert(at, text.mid(*rc::gen::inRange(0, text.size()), length));
        else
            text.truncate(at);
    }
    return text;
}

/** A value in the design's JSON replaced by one of another type, at a place drawn at random. */
QJsonValue disturbed(const QJsonValue& value)
{
    if (*rc::gen::inRange(0, 12) == 0)
        return *rc::gen::element<QJsonValue>(QJsonValue(), true, -1, 1e300, QString(),
                                             QStringLiteral("../x"), uuidText(21), QJsonArray(),
                                             QJsonObject(), QJsonArray{QJsonArray{1}});
    if (value.isArray()) {
        QJsonArray entries;
        for (const QJsonValue entry : value.toArray())
            entries.append(disturbed(entry));
        return entries;
    }
    if (!value.isObject())
        return value;
    QJsonObject object = value.toObject();
    for (const QString& key : object.keys())
        object.insert(key, disturbed(object.value(key)));
    return object;
}

void checkReading(const QByteArray& text)
{
    const DesignReading reading = DesignReader().parse(text, file);
    RC_ASSERT(reading.design || !reading.problems.empty());
    for (const Problem& problem : reading.problems) {
        RC_ASSERT(problem.file == file);
        RC_ASSERT(!problem.reason.isEmpty());
    }
    if (!reading.design)
        return;
    // What was read and is written again holds all that the file held, understood or not.
    RC_ASSERT(QJsonDocument::fromJson(DesignWriter::toJson(*reading.design)) ==
              QJsonDocument::fromJson(text));
}

} // namespace

class DesignFuzzTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyCutGivesDesignOrProblem();
    void damagedTextGivesDesignOrProblem();
    void damagedValuesAreReportedAndKept();
};

void DesignFuzzTest::everyCutGivesDesignOrProblem()
{
    const QByteArray whole = toText(smallDesign()).trimmed();
    for (int length = 0; length < whole.size(); ++length) {
        const DesignReading reading = DesignReader().parse(whole.left(length), file);
        QVERIFY(!reading.design);
        QCOMPARE(reading.problems.size(), std::size_t(1));
    }
}

void DesignFuzzTest::damagedTextGivesDesignOrProblem()
{
    QVERIFY(rc::check([] { checkReading(mutated(toText(smallDesign()))); }));
}

void DesignFuzzTest::damagedValuesAreReportedAndKept()
{
    QVERIFY(rc::check([] {
        QJsonObject design = disturbed(smallDesign()).toObject();
        design.insert(QStringLiteral("version"), 2);
        checkReading(toText(design));
    }));
}

ZORVANE_TEST(DesignFuzzTest)
#include "DesignFuzzTest.moc"
