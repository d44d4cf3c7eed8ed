#pragma once

#include "FileDialogs/FileDialog.h"
#include "Host/System/CommandLineParser.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <memory>

namespace Zorvane::Testing {

inline const QString s_caption = QStringLiteral("Open a part");
inline const QString s_filter = QStringLiteral("Parts (*.prt *.dsg);;Tables (*.csv)");
inline const QString s_parts = QStringLiteral("Parts (*.prt *.dsg)");
inline const QString s_tables = QStringLiteral("Tables (*.csv)");
inline const QString s_scope = QStringLiteral("Design");

/** Dialogs are shown by a driver that follows the test's script, over a folder with a file. */
class FacadeTestCase : public TestCase
{
    Q_OBJECT

protected:
    QString path(const QString& name) const
    {
        return QDir::toNativeSeparators(m_dir->filePath(name));
    }
    static void giveArguments(const QStringList& arguments)
    {
        CommandLineParser::instance()->parse(QStringList(QStringLiteral("test")) + arguments);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    ScriptedPathProvider m_provider;
    DialogScript m_script;
    bool m_hasDriver = true;
    const NativeFileDialogReplacement m_replacement{
        [this] { return m_hasDriver ? std::make_unique<ScriptedDriver>(m_script) : nullptr; }};

protected Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(writeFile(path(QStringLiteral("a.prt"))));
        m_provider = ScriptedPathProvider();
        m_provider.path = m_dir->path();
        m_script = DialogScript();
        m_hasDriver = true;
        giveArguments({});
        QCOMPARE(FileDialog::getOpenDialogsCount(), 0);
    }
};

} // namespace Zorvane::Testing
