#pragma once

#include "Files/FileCopier.h"

#include <QtCore/QStringList>

#include <memory>

namespace Zorvane::Testing {

/** As long as it lives, nothing is copied: what is asked is written down and answered as told. */
struct ScriptedCopier
{
    QList<FileCopyUtility::FileCopyInfo> records;
    int calls = 0;
    QWidget* owner = nullptr;
    QStringList sources;
    QString targetFolder;

private:
    class Copier : public FileCopier
    {
    public:
        explicit Copier(ScriptedCopier& script)
            : m_script(script)
        {}
        QList<FileCopyUtility::FileCopyInfo> copy(QWidget* window, const QStringList& files,
                                                  const QString& folder) override
        {
            ++m_script.calls;
            m_script.owner = window;
            m_script.sources = files;
            m_script.targetFolder = folder;
            return m_script.records;
        }

    private:
        ScriptedCopier& m_script;
    };

    const FileCopierReplacement m_replacement{[this] { return std::make_unique<Copier>(*this); }};
};

} // namespace Zorvane::Testing
