#pragma once

#include "Workbench/Meshes/MeshWriter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace Zorvane::Workbench {

/** What a mesh file is converted to: STL of the other format, or binary STL of anything else. */
StlFormat targetFormat(const QString& inputFile);

/**
 * The file to write, there and empty, under a name that nothing had before: that of the input,
 * told apart by the format where the input is an STL file, too, and by a number where that is
 * taken. It vanishes again with this object, unless it is kept.
 */
class ConversionTarget
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::ConversionTarget)

public:
    ConversionTarget(const QString& inputFile, const QString& folder);
    ~ConversionTarget();

    ConversionTarget(const ConversionTarget&) = delete;
    ConversionTarget& operator=(const ConversionTarget&) = delete;

    /** Empty if no file can be made there. */
    const QString& file() const { return m_file; }
    /** Why not. */
    const QString& obstacle() const { return m_obstacle; }
    void keep() { m_isKept = true; }

private:
    QString m_file;
    QString m_obstacle;
    bool m_isKept = false;
};

} // namespace Zorvane::Workbench
