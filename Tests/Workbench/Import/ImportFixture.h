#pragma once

#include "Files/PathProvider.h"
#include "Tests/Workbench/Tree/TreeFixture.h"
#include "Workbench/Import/FileChooser.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

namespace Zorvane::Testing {

/** An opened design, and a folder elsewhere with files to import. */
struct ImportFixture : OpenedDesign
{
    QString outside(const QString& name, const QByteArray& content) const
    {
        return writeFile(elsewhere.filePath(name), content);
    }
    QString outsideMesh(const QString& name, float edge = 5) const
    {
        return outside(name, binaryStl(cube(edge)));
    }
    const Workbench::Design& design() const { return session.designs().front(); }
    QStringList designPaths() const
    {
        QStringList paths;
        for (const Workbench::FileReference& file : design().files)
            paths << file.path;
        return paths;
    }
    QStringList partNames() const
    {
        QStringList names;
        for (const Workbench::Part& part : design().parts)
            names << part.name;
        return names;
    }
    /** Files and folders that lie beside the design file, and it. */
    QStringList entries() const
    {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir elsewhere;
};

/** Chooses what it was told to, and writes down what it was asked. */
class ScriptedChooser : public Workbench::FileChooser
{
public:
    struct Script
    {
        QStringList files;
        QString folder;
        Workbench::FileChoice asked;
        /** Where a dialog would have opened. */
        QString opened;
        /** A file to write, and what was proposed for it. */
        QString saved;
        QString proposed;
    };

    explicit ScriptedChooser(Script& script)
        : m_script(script)
    {}

    QStringList files(QWidget*, const Workbench::FileChoice& choice) override
    {
        ask(choice, m_script.files.isEmpty() ? QString() : m_script.files.first());
        return m_script.files;
    }
    QString folder(QWidget*, const Workbench::FileChoice& choice) override
    {
        ask(choice, m_script.folder);
        return m_script.folder;
    }
    QString fileToSave(QWidget*, const Workbench::FileChoice& choice,
                       const QString& fileName) override
    {
        m_script.proposed = fileName;
        ask(choice, m_script.saved);
        return m_script.saved;
    }
    QString fileToSaveBeside(QWidget*, const Workbench::FileChoice& choice,
                             const QString& path) override
    {
        m_script.proposed = path;
        ask(choice, m_script.saved);
        return m_script.saved;
    }

private:
    /** As dialogs do. */
    void ask(const Workbench::FileChoice& choice, const QString& chosen)
    {
        m_script.asked = choice;
        m_script.opened = choice.paths->getPathFromScope(choice.scope);
        choice.paths->setPathToScope(chosen, choice.scope);
    }

    Script& m_script;
};

} // namespace Zorvane::Testing
