#pragma once

#include "Workbench/Design/Design.h"
#include "Workbench/Texts/Problem.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>

#include <map>
#include <optional>

namespace Zorvane::Workbench {

/** What became of reading a design file. */
struct DesignReading
{
    /** Empty when the file is no design that this program can read; `problems` then tells why. */
    std::optional<Design> design;
    /** Of the file; null if it could not be read at all. */
    QByteArray content;
    /** Also what was left out of a design that could be read. */
    Problems problems;
};

/**
 * Reads design files. A broken piece is left out with a problem and kept aside for writing back;
 * a file that is no JSON, has no identifier or another version gives no design at all.
 * Files referred to are looked for, never opened.
 *
 * Not supported: comments in JSON; a key given twice in one object (the last one counts).
 */
class DesignReader
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::DesignReader)

public:
    static constexpr int oldestVersion = 1;
    /** That which is written. Since 2, parts have a thickness, and parts and tools a force. */
    static constexpr int currentVersion = 2;
    /** In bytes. A design file holds names and references; larger ones are not read. */
    static constexpr qint64 largestFile = 16 * 1024 * 1024;

    /** Identifiers that other designs use, with the file that uses them. */
    using TakenIds = std::map<GUIdentifier, QString>;

    /** Objects with an identifier of `taken` are left out with a problem. */
    explicit DesignReader(TakenIds taken = {});

    /** Reads the file at `path`. */
    DesignReading read(const QString& path) const;
    /** Reads `content` as if it stood in the file at `path`. */
    DesignReading parse(const QByteArray& content, const QString& path) const;

private:
    TakenIds m_taken;
};

} // namespace Zorvane::Workbench
