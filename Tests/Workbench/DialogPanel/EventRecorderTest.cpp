#include "Workbench/DialogPanel/EventRecorder.h"

#include "FileDialogs/FileDialogCallbackInterface.h"
#include "FileDialogs/FileDialogConfiguration.h"
#include "Tests/Support/TestCase.h"
#include "Workbench/DialogPanel/DialogRecord.h"

#include <vector>

namespace Zorvane::Workbench {

namespace {

class FakeCallbacks : public FileDialogCallbackInterface
{
public:
    explicit FakeCallbacks(const QRect& geometry)
        : m_geometry(geometry)
    {}

    void setControlState(int, int) const override {}
    void placeDialog(FileDialogConfiguration* configuration) const override
    {
        placed.push_back(configuration);
    }
    QRect getDialogGeometry() const override { return m_geometry; }

    mutable std::vector<FileDialogConfiguration*> placed;

private:
    const QRect m_geometry;
};

} // namespace

class EventRecorderTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void eventsTellWhereTheDialogIs();
    void theDialogIsPlacedAsItOpens();
};

void EventRecorderTest::eventsTellWhereTheDialogIs()
{
    DialogRecord record([](const DialogOutcome&) {});
    EventRecorder recorder(record, QStringLiteral("2: "));
    // Left of the screens, and where there is no dialog.
    recorder.onTypeChanged(FakeCallbacks({-30, 20, 625, 600}));
    recorder.onCheckBoxToggled(true, 8, FakeCallbacks(QRect()));
    recorder.onSelectionChanged({QStringLiteral("a"), QStringLiteral("b")},
                                FakeCallbacks({1, -2, 3, 4}));
    QCOMPARE(record.outcome.events,
             QStringList({QStringLiteral("[0] 2: onTypeChanged() @ 625x600-30+20"),
                          QStringLiteral("[0] 2: onCheckBoxToggled(true, 8) @ ?"),
                          QStringLiteral("[0] 2: onSelectionChanged(\"a\", \"b\") @ 3x4+1-2")}));
}

void EventRecorderTest::theDialogIsPlacedAsItOpens()
{
    DialogRecord record([](const DialogOutcome&) {});
    FileDialogConfiguration configuration;
    EventRecorder recorder(record);
    const FakeCallbacks callbacks({0, 0, 1, 1});
    recorder.onTypeChanged(callbacks);
    QVERIFY(callbacks.placed.empty());
    recorder.setFileDialogConfiguration(&configuration);
    recorder.onTypeChanged(callbacks);
    recorder.onTypeChanged(callbacks);
    QCOMPARE(callbacks.placed, std::vector<FileDialogConfiguration*>{&configuration});
}

} // namespace Zorvane::Workbench

using Zorvane::Workbench::EventRecorderTest;
ZORVANE_TEST(EventRecorderTest)
#include "EventRecorderTest.moc"
