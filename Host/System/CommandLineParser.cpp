#include "Host/System/CommandLineParser.h"

#include "Host/Translation/Translator.h"

#include <QtCore/QCoreApplication>

namespace Zorvane {

CommandLineParser* CommandLineParser::instance()
{
    static CommandLineParser parser;
    return &parser;
}

CommandLineParser::CommandLineParser()
{
    m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    m_parser.addOption(QCommandLineOption(
        QStringLiteral("alternativeFileDialog"),
        Translator::translate("CommandLineParser", "Uses file dialogs without system services.")));
}

QCommandLineParser& CommandLineParser::options()
{
    return m_parser;
}

void CommandLineParser::process()
{
    m_isParsed = true;
    m_parser.process(QCoreApplication::arguments());
}

bool CommandLineParser::parse(const QStringList& arguments)
{
    m_isParsed = true;
    return m_parser.parse(arguments);
}

bool CommandLineParser::optionWasSpecified(const QString& name)
{
    if (!m_isParsed)
        parse(QCoreApplication::arguments());
    // Asking the parser for an option that was not declared makes it print a warning.
    return m_parser.optionNames().contains(name);
}

} // namespace Zorvane
