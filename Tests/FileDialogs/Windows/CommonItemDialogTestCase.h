#pragma once

#include "FileDialogs/Windows/CommonItemDialogDriver.h"
#include "Files/Windows/ComApartment.h"
#include "Tests/FileDialogs/Windows/NativeDialogFixture.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Support/Windows/FakeItemDialog.h"
#include "Tests/Support/Windows/TaskMemorySpy.h"

#include <memory>
#include <optional>
#include <utility>

namespace Zorvane::Testing {

constexpr HRESULT s_failure = E_ACCESSDENIED;

using CustomItem = FileDialogConfiguration::CustomItem;

inline CustomItem item(int id, int type, const char* group, const QVariant& content,
                       const QVariant& initial, bool isProminent, int state)
{
    CustomItem item;
    item.controlId = id;
    item.controlType = type;
    item.groupLabel = QString::fromLatin1(group);
    item.content = content;
    item.initialValue = initial;
    item.prominent = isProminent;
    item.controlState = state;
    return item;
}

/** The driver, against dialogs of the test's own; nothing of them may be left after a test. */
class CommonItemDialogTestCase : public TestCase
{
    Q_OBJECT

protected:
    void addControls()
    {
        m_configuration->addCustomControl(item(5, FileDialogConfiguration::CheckBox, "",
                                               QStringLiteral("Preview"), true, true, 3));
        m_configuration->addCustomControl(
            item(6, FileDialogConfiguration::ComboBox, "Unit",
                 QStringList{QStringLiteral("mm"), QStringLiteral("inch")}, 1, true, 2));
    }

    QStringList openCalls()
    {
        m_driver.run(m_request);
        return std::exchange(m_script.calls, {}).calls();
    }

    QStringList saveCalls()
    {
        m_driver.run(forSaving(m_request));
        return std::exchange(m_script.calls, {}).calls();
    }

    int m_taskMemory = 0;
    std::optional<DialogFolder> m_folder;
    FileDialogRequest m_request;
    EventRecorder m_handler;
    std::optional<FileDialogConfiguration> m_configuration;
    std::optional<ComApartment> m_apartment;
    ItemDialogScript m_script;
    std::unique_ptr<FakeItemDialogs> m_dialogs;
    CommonItemDialogDriver m_driver;

protected Q_SLOTS:
    /** What the system keeps for itself from its first use on is not ours. */
    void initTestCase()
    {
        livingTaskMemory();
        init();
        openCalls();
        saveCalls();
        m_taskMemory = livingTaskMemory();
        cleanup();
    }

    void init()
    {
        m_taskMemory = livingTaskMemory();
        m_folder.emplace();
        m_handler = {};
        m_configuration.emplace(QStringLiteral("Calls"));
        m_configuration->setEventHandler(&m_handler);
        m_request = m_folder->request();
        m_request.purpose = FileDialogPurpose::OpenFiles;
        m_request.selectedFilter = QStringLiteral("All Files (*.*)");
        m_request.start = m_folder->path("a.stl");
        m_request.places = {m_folder->folder(), m_folder->path("missing"), m_folder->folder()};
        m_request.configuration = &*m_configuration;
        m_apartment.emplace();
        m_script = {};
        m_script.results = QStringList{m_folder->path("b.stl"), m_folder->path("a.stl")};
        m_dialogs = std::make_unique<FakeItemDialogs>(m_script);
    }

    void cleanup()
    {
        QCOMPARE(livingTaskMemory(), m_taskMemory);
        QCOMPARE(m_script.leftReferences, 0UL);
        m_dialogs.reset();
        QCOMPARE(Counted::living(), 0);
        m_apartment.reset();
        m_folder.reset();
        TestCase::cleanup();
    }
};

} // namespace Zorvane::Testing
