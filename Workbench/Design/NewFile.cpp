#include "Workbench/Design/NewFile.h"

#include "Workbench/Design/FileNames.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace Zorvane::Workbench {

namespace {

/** Many more than anybody has; against folders in which every name seems taken. */
constexpr int s_mostNames = 10000;

} // namespace

NewFile::NewFile(const QString& folder, const QString& stem, const QString& ending)
{
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) {
        m_obstacle = tr("there is no such folder");
        return;
    }
    const QDir dir(QFileInfo(folder).absoluteFilePath());
    for (int number = 1; number <= s_mostNames; ++number) {
        const QString suffix = number == 1 ? QString() : QStringLiteral(" (%1)").arg(number);
        const QString name = FileNames::fitted(stem, suffix + ending);
        m_obstacle = FileNames::obstacle(name);
        if (!m_obstacle.isEmpty()) {
            m_obstacle.prepend(name + QLatin1Char(' '));
            return;
        }
        QFile file(dir.filePath(name));
        // Taken by whoever makes it first: another program may want the name, too.
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            m_path = file.fileName();
            return;
        }
        m_obstacle = file.errorString();
        if (!QFileInfo::exists(file.fileName()))
            return;
    }
}

NewFile::~NewFile()
{
    if (!m_path.isEmpty() && !m_isKept)
        QFile::remove(m_path);
}

} // namespace Zorvane::Workbench
