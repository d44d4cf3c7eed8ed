#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Workbench {

/**
 * A folder with a few files to choose from, the same on every machine: "block.stl", "plate.stl",
 * "press table.csv", "notes.txt", "Größe 100 %.txt", "no ending", and in the folder "more" another
 * "block.stl". Goes with this object.
 */
class ExampleFiles
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::ExampleFiles)

public:
    ExampleFiles();

    ExampleFiles(const ExampleFiles&) = delete;
    ExampleFiles& operator=(const ExampleFiles&) = delete;

    bool areThere() const { return m_areThere; }
    QString folder() const { return m_folder.path(); }
    QString file(const QString& name) const { return m_folder.filePath(name); }

    /** Filters of the file types among them; the same as types of a file to be written. */
    static QString openFilter();
    static QString saveFilter();
    static QString tableType();

private:
    QTemporaryDir m_folder;
    bool m_areThere = false;
};

} // namespace Zorvane::Workbench
