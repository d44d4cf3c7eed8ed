#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QImage>

#include <optional>
#include <vector>

namespace Zorvane::Workbench {

/**
 * What there is to see of a file. A plain value, which travels from the process that reads files to
 * the one that shows them.
 */
struct PreviewContent
{
    enum class Kind
    {
        /** Nothing can be shown; `note` tells why. */
        Message,
        Picture,
        Table,
        Text
    };

    /** In bytes; more than any preview of a picture that fits on a screen. */
    static constexpr qint64 largestSize = 32LL * 1024 * 1024;

    Kind kind = Kind::Message;
    /** Facts beside what is shown, in the user's language. */
    QString note;
    /** 32 bits a pixel. */
    QImage picture;
    /** The first row is the table's head; rows may differ in length. */
    std::vector<QStringList> rows;
    QString text;

    static PreviewContent message(const QString& note) { return {Kind::Message, note, {}, {}, {}}; }

    QByteArray toBytes() const;
    /**
     * None unless the bytes are those of one whole content. Takes no more memory than a few times
     * their number, whatever they are.
     */
    static std::optional<PreviewContent> fromBytes(const QByteArray& bytes);
};

} // namespace Zorvane::Workbench

Q_DECLARE_METATYPE(Zorvane::Workbench::PreviewContent)
Q_DECLARE_METATYPE(Zorvane::Workbench::PreviewContent::Kind)
