#pragma once

#include "Host/HostExport.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Zorvane {

/**
 * What the user wrote on the program's command line. The suite's own options are declared from the
 * start:
 * - "alternativeFileDialog": use Qt's own file dialogs.
 *
 * A program adds what it knows to `options()` and calls `process` once at start-up. Where none
 * does, the application's arguments are read at the first question. A long option may be written
 * with one dash or two. GUI thread only.
 */
class ZORVANE_HOST_EXPORT CommandLineParser
{
public:
    /** The one of the process, made at the first call. */
    static CommandLineParser* instance();

    CommandLineParser(const CommandLineParser&) = delete;
    CommandLineParser& operator=(const CommandLineParser&) = delete;

    /** For declaring options and positional arguments, and for their values after `process`. */
    QCommandLineParser& options();

    /** Reads the application's arguments. Ends the program with a message if one is wrong, and
     * after showing help or version, as `QCommandLineParser::process` does. */
    void process();
    /** Reads these arguments, the program's name first; false if one is wrong. What was right in
     * them counts all the same. */
    bool parse(const QStringList& arguments);

    /** Whether the option was given; false for one that was not declared. */
    bool optionWasSpecified(const QString& name);

private:
    CommandLineParser();
    ~CommandLineParser() = default;

    QCommandLineParser m_parser;
    bool m_isParsed = false;
};

} // namespace Zorvane
