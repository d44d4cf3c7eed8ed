#pragma once

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
    };

    explicit ScriptedChooser(Script& script)
        : m_script(script)
    {}

    QStringList files(QWidget*, const Workbench::FileChoice& choice) override
    {
        m_script.asked = choice;
        return m_script.files;
    }
    QString folder(QWidget*, const Workbench::FileChoice& choice) override
    {
        m_script.asked = choice;
        return m_script.folder;
    }

private:
    Script& m_script;
};

} // namespace Zorvane::Testing
