#include "Workbench/Convert/ConversionTarget.h"

#include "Host/FileHandling/StlContent.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace Zorvane::Workbench {

namespace {

/** Many more than anybody has; against folders in which every name seems taken. */
constexpr int s_mostNames = 10000;

bool isStl(const QString& file)
{
    return QFileInfo(file).suffix().compare(QStringLiteral("stl"), Qt::CaseInsensitive) == 0;
}

QString stemFor(const QString& inputFile)
{
    const QString stem = QFileInfo(inputFile).completeBaseName();
    if (!isStl(inputFile))
        return stem;
    return stem + (targetFormat(inputFile) == StlFormat::Ascii ? QLatin1String("-ascii")
                                                               : QLatin1String("-binary"));
}

QString nameFor(const QString& stem, int number)
{
    return number == 1 ? QStringLiteral("%1.stl").arg(stem)
                       : QStringLiteral("%1 (%2).stl").arg(stem).arg(number);
}

} // namespace

StlFormat targetFormat(const QString& inputFile)
{
    return isStl(inputFile) && isBinaryStl(FileName(inputFile)) ? StlFormat::Ascii
                                                                : StlFormat::Binary;
}

ConversionTarget::ConversionTarget(const QString& inputFile, const QString& folder)
{
    if (folder.isEmpty() || !QFileInfo(folder).isDir()) {
        m_obstacle = tr("there is no such folder");
        return;
    }
    const QDir dir(folder);
    const QString stem = stemFor(inputFile);
    for (int number = 1; number <= s_mostNames; ++number) {
        QFile file(dir.filePath(nameFor(stem, number)));
        // Taken by whoever makes it first: another program may want the name, too.
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            m_file = file.fileName();
            return;
        }
        m_obstacle = file.errorString();
        if (!QFileInfo::exists(file.fileName()))
            return;
    }
}

ConversionTarget::~ConversionTarget()
{
    if (!m_file.isEmpty() && !m_isKept)
        QFile::remove(m_file);
}

} // namespace Zorvane::Workbench
