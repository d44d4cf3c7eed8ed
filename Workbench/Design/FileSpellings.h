#pragma once

#include <QtCore/QMultiHash>
#include <QtCore/QString>

namespace Zorvane::Workbench {

/**
 * Tells one file from another where the case of letters doesn't count: knows how each was spelled
 * first. Files are told by absolute paths, and need not exist.
 */
class FileSpellings
{
public:
    /** The path by which this file was asked about first. */
    QString firstOf(const QString& file);

private:
    QMultiHash<QString, QString> m_files;
};

} // namespace Zorvane::Workbench
