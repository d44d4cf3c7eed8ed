#include "FileDialogs/PreviewFileDialog.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/FileDialogs/PreviewFixtures.h"
#include "Tests/FileDialogs/Windows/NativeDialogFixture.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/DialogPilot.h"

#include <QtCore/QSettings>

#include <optional>

using namespace Zorvane;
using Testing::DialogPilot;
using Testing::DialogWindow;

/** The preview window beside the system's own dialog. */
class NativePreviewTest : public Testing::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void previewFollowsTheSelection();
    void dialogStandsBesideThePreview();
    void checkBoxShowsAndHidesThePreview();

private:
    /** Shows the dialog; the pilot has the steps, without the last one. */
    QString run(DialogPilot& pilot);

    std::optional<Testing::DialogFolder> m_folder;
    Testing::ScriptedPathProvider m_provider;
    std::shared_ptr<Testing::RecordingEditor> m_editor;
    std::shared_ptr<PreviewFileDialogConfiguration> m_configuration;
};

void NativePreviewTest::init()
{
    QSettings().clear();
    m_folder.emplace();
    m_provider.path = m_folder->folder();
    m_editor = std::make_shared<Testing::RecordingEditor>();
    m_configuration =
        std::make_shared<PreviewFileDialogConfiguration>(Testing::previewConfiguration());
}

QString NativePreviewTest::run(DialogPilot& pilot)
{
    pilot.then([](const DialogWindow& dialog) { dialog.accept(); });
    PreviewFileDialog dialog(m_editor, m_configuration, nullptr);
    return dialog.getOpenFileName(&m_provider);
}

void NativePreviewTest::previewFollowsTheSelection()
{
    DialogPilot pilot;
    pilot.waitUntil("files in the list",
                    [](const DialogWindow& dialog) { return !dialog.files().isEmpty(); });
    pilot.then([this](const DialogWindow& dialog) {
        QCOMPARE(dialog.title(), QStringLiteral("Open one"));
        m_editor->takeCalls();
        dialog.selectFiles({QStringLiteral("b.stl")});
    });
    pilot.then([this](const DialogWindow&) {
        QCOMPARE(m_editor->calls.last(), QStringLiteral("showFile ") + m_folder->path("b.stl"));
    });
    QCOMPARE(run(pilot), m_folder->path("b.stl"));
    QVERIFY(pilot.isDone());
    QCOMPARE(m_editor->calls.last(), QStringLiteral("setVisible 0"));
}

void NativePreviewTest::dialogStandsBesideThePreview()
{
    // Larger than the least size that the system's dialog has.
    m_configuration->setDefaultDialogSize(QSize(660, 400));
    m_editor->geometry = QRect(0, 0, 200, 560);
    DialogPilot pilot;
    pilot.waitUntil("the dialog beside the preview", [this](const DialogWindow& dialog) {
        const RECT rect = dialog.rectangle();
        return rect.right < m_editor->geometry.left() && rect.top == m_editor->geometry.top();
    });
    pilot.then([](const DialogWindow& dialog) { dialog.typeFileName(QStringLiteral("a.stl")); });
    QCOMPARE(run(pilot), m_folder->path("a.stl"));
    QVERIFY(pilot.isDone());
}

void NativePreviewTest::checkBoxShowsAndHidesThePreview()
{
    DialogPilot pilot;
    const auto click = [](const DialogWindow& dialog) {
        const HWND box = dialog.findControl(L"Button", QStringLiteral("Preview"));
        QVERIFY(box);
        dialog.click(box);
    };
    pilot.then([&](const DialogWindow& dialog) {
        m_editor->takeCalls();
        click(dialog);
    });
    pilot.waitUntil("a hidden preview", [this](const DialogWindow&) {
        return m_editor->calls.contains(QStringLiteral("setVisible 0"));
    });
    pilot.then(click);
    pilot.waitUntil("a shown preview", [this](const DialogWindow&) {
        return m_editor->calls.contains(QStringLiteral("setVisible 1"));
    });
    pilot.then([](const DialogWindow& dialog) { dialog.typeFileName(QStringLiteral("a.stl")); });
    QCOMPARE(run(pilot), m_folder->path("a.stl"));
    QVERIFY(pilot.isDone());
    QVERIFY(QSettings().value(QStringLiteral("PreviewTest/ShowPreview")).toBool());
}

ZORVANE_TEST(NativePreviewTest)
#include "NativePreviewTest.moc"
