#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace Zorvane::Workbench {

/** A mesh file's content, checked: fit for the parser, or what is wrong with it and where. */
struct MeshContent
{
    QByteArray content;
    /** Empty unless something is wrong. */
    QString reason;
    QString where;

    static MeshContent wrong(const QString& reason, const QString& where = {})
    {
        return {{}, reason, where};
    }
};

/** ASCII files come back in lower case, which the parser wants. */
MeshContent checkStl(const QByteArray& content);
/** Comes back with points and faces only: no materials, no textures, no references to files. */
MeshContent checkObj(const QByteArray& content);
/** Comes back as binary with points and faces only. */
MeshContent checkPly(const QByteArray& content);

} // namespace Zorvane::Workbench
