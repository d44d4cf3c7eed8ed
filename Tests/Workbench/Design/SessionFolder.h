#pragma once

#include "Tests/Workbench/Design/DesignFiles.h"
#include "Workbench/Design/DesignSession.h"

#include <QtCore/QTemporaryDir>

#include <memory>

namespace Zorvane::Testing {

/** For tests that share no session and no files: call `renew` before each. */
class SessionFolder
{
protected:
    void renew()
    {
        m_session = std::make_unique<Workbench::DesignSession>();
        m_folder = std::make_unique<QTemporaryDir>();
    }
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString path(const char* name) const { return path(QString::fromUtf8(name)); }
    QString openSmallDesign()
    {
        const QString file = writeFile(path("small.dsg"), toText(smallDesign()));
        m_session->open({file});
        return file;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Workbench::DesignSession> m_session;
};

} // namespace Zorvane::Testing
