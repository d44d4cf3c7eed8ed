#pragma once

#include "Host/DesignStatus/DesignStatus.h"
#include "Tests/Support/TestCase.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Commands/FileCommands.h"
#include "Workbench/Saving/DesignSaving.h"
#include "Workbench/Solver/SimulationRunner.h"
#include "Workbench/Undo/EditHistory.h"

#include <QtCore/QLockFile>

#include <memory>
#include <utility>

namespace Zorvane::Testing {

/** Answers Save As with one file; empty for cancel. */
class OneFileChooser : public Workbench::FileChooser
{
public:
    explicit OneFileChooser(QString file)
        : m_file(std::move(file))
    {}

    QStringList files(QWidget*, const Workbench::FileChoice&) override { return {}; }
    QString folder(QWidget*, const Workbench::FileChoice&) override { return {}; }
    QString fileToSave(QWidget*, const Workbench::FileChoice&, const QString&) override
    {
        return m_file;
    }
    QString fileToSaveBeside(QWidget*, const Workbench::FileChoice&, const QString&) override
    {
        return m_file;
    }

private:
    QString m_file;
};

/** The small design in a session, with everything that saves, closes and computes it. */
class SavingFixture : public TestCase
{
protected:
    void setUp();
    void tearDown();
    Workbench::DesignSession& session() { return m_opened->session; }
    const Workbench::Design& design() { return session().designs().front(); }
    QByteArray onDisk() const { return readFile(m_opened->designFile()); }
    QByteArray onOtherDisk() const { return readFile(m_opened->path(QStringLiteral("other.dsg"))); }
    void edit() { session().rename(objectId(10), QStringLiteral("Left door")); }
    bool isEditOnDisk() const { return onDisk().contains("Left door"); }
    void addResult();
    bool hasResult() { return results() > 0; }
    int results();
    void changeFileElsewhere();
    void reopenAsVersion1();
    std::unique_ptr<QLockFile> computeElsewhere();
    void chooseForSaveAs(const QString& name);

    std::unique_ptr<OpenedDesign> m_opened;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Workbench::EditHistory> m_history;
    std::unique_ptr<Workbench::SimulationRunner> m_runner;
    Workbench::FileCommands* m_files = nullptr;
    Workbench::DesignSaving* m_saving = nullptr;
    QStringList m_told;
    QStringList m_failures;
};

inline void SavingFixture::setUp()
{
    m_opened = std::make_unique<OpenedDesign>();
    m_window = std::make_unique<QWidget>();
    m_history = std::make_unique<Workbench::EditHistory>(session(), nullptr);
    m_runner = std::make_unique<Workbench::SimulationRunner>();
    m_runner->setSteps(3);
    m_files = new Workbench::FileCommands(session(), m_window.get());
    m_saving =
        new Workbench::DesignSaving({session(), *m_history, *m_files, *m_runner}, m_window.get());
    m_told.clear();
    m_failures.clear();
    connect(m_saving, &Workbench::DesignSaving::done, this,
            [this](const QString& t) { m_told << t; });
    connect(m_saving, &Workbench::DesignSaving::failed, this,
            [this](const QString& t) { m_failures << t; });
}

inline void SavingFixture::tearDown()
{
    qApp->setProperty("SuppressSaveDialog", QVariant());
    m_window.reset();
    m_runner.reset();
    m_history.reset();
    m_opened.reset();
    TestCase::cleanup();
}

inline void SavingFixture::addResult()
{
    const QString file = writeFile(m_opened->path(QStringLiteral("draw.csv")), "stroke\n");
    QVERIFY(session().addFiles(design().id, {file}).empty());
    QVERIFY(session().save().empty());
}

inline int SavingFixture::results()
{
    int count = 0;
    for (const Workbench::FileReference& file : design().files)
        count += file.kind == Workbench::FileKind::Result ? 1 : 0;
    return count;
}

inline void SavingFixture::changeFileElsewhere()
{
    QJsonObject theirs = smallDesign();
    theirs.insert(QStringLiteral("name"), QStringLiteral("Theirs"));
    replaceFile(m_opened->designFile(), toText(theirs));
}

inline void SavingFixture::reopenAsVersion1()
{
    QJsonObject old = smallDesign();
    old.insert(QStringLiteral("version"), 1);
    session().close();
    replaceFile(m_opened->designFile(), toText(old));
    session().open({m_opened->designFile()});
}

inline std::unique_ptr<QLockFile> SavingFixture::computeElsewhere()
{
    auto mark =
        std::make_unique<QLockFile>(DesignStatus::getJobFile(FileName(design().file)).toQString());
    mark->setStaleLockTime(0);
    if (!mark->tryLock(0))
        qWarning("The design could not be marked as being computed.");
    return mark;
}

inline void SavingFixture::chooseForSaveAs(const QString& name)
{
    m_files->setFileChooser(
        std::make_unique<OneFileChooser>(name.isEmpty() ? QString() : m_opened->path(name)));
}

} // namespace Zorvane::Testing
