#include "Dialogs/SaveMessage.h"

#include "Host/Translation/Translator.h"
#include "Host/Widgets/TextWrapping.h"

#include <QtWidgets/QApplication>

#include <array>
#include <cstddef>

namespace Zorvane {

namespace {

constexpr int s_nameWidth = 300;

/** The bits of the facts. */
enum Fact : std::size_t
{
    NotSaved = 1,
    HasResults = 2,
    IsRunning = 4,
    IsOldVersion = 8
};

QString messageText(const char* source)
{
    return Translator::translate("ZVSaveDialog", source);
}

// clang-format off
/**
 * By the bits of the facts. While a simulation is running little else counts. 0, 14 and 15 are no
 * sentences; the suite has shipped them so, and its catalogues have them.
 */
constexpr std::array<const char*, 16> s_factTexts = {
    /*  0                                  */ QT_TRANSLATE_NOOP("ZVSaveDialog", "!"),
    /*  1 not saved                        */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design has not been saved since the last change."),
    /*  2            results               */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design contains simulation results."),
    /*  3 not saved, results               */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design has not been saved since the last change and contains simulation results."),
    /*  4                     running      */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design is still running a simulation."),
    /*  5 not saved,          running      */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design has not been saved since the last change and is still running a simulation."),
    /*  6            results, running      */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design is still running a simulation."),
    /*  7 not saved, results, running      */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design is still running a simulation."),
    /*  8                              old */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design was created with a previous version."),
    /*  9 not saved,                   old */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design has not been saved since the last change and was created with a previous version."),
    /* 10            results,          old */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design contains simulation results and was created with a previous version."),
    /* 11 not saved, results,          old */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design has not been saved since the last change, contains simulation results and was created with a previous version."),
    /* 12                     running, old */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design is still running a simulation."),
    /* 13 not saved,          running, old */ QT_TRANSLATE_NOOP("ZVSaveDialog", "The current design is still running a simulation."),
    /* 14            results, running, old */ QT_TRANSLATE_NOOP("ZVSaveDialog", "%"),
    /* 15 not saved, results, running, old */ QT_TRANSLATE_NOOP("ZVSaveDialog", "\xEF\xBF\xBD"),
};
// clang-format on

bool mentionsUnsaved(const SaveState& state, ZVSaveDialog::Action action)
{
    switch (action) {
    case ZVSaveDialog::ActionClose:
    case ZVSaveDialog::ActionProceed:
        return true;
    case ZVSaveDialog::ActionStart:
        return state.isModified;
    case ZVSaveDialog::ActionSave:
        break;
    }
    return false;
}

std::size_t factsFor(const SaveState& state, ZVSaveDialog::Action action)
{
    std::size_t facts = 0;
    if (mentionsUnsaved(state, action))
        facts |= NotSaved;
    if (willDropResults(state, action))
        facts |= HasResults;
    if (state.isJobRunning && action != ZVSaveDialog::ActionClose)
        facts |= IsRunning;
    if (!state.isCurrentVersion)
        facts |= IsOldVersion;
    return facts;
}

/** A name is not mark-up, whatever letters it has, and long ones are broken. */
QString richName(const QString& name)
{
    return wrapTextToFitWidth(name, QApplication::font("QMessageBox"), s_nameWidth)
        .toHtmlEscaped()
        .replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

/** Empty where nothing is asked. */
QString questionFor(const SaveState& state, const SaveSubject& subject)
{
    const char* question =
        QT_TRANSLATE_NOOP("ZVSaveDialog", "Do you want to save the changes to \"%1\" prior to "
                                          "closing?");
    if (!state.isCurrentVersion && state.hasEvaluationDataChanged)
        question = QT_TRANSLATE_NOOP("ZVSaveDialog",
                                     "Evaluation Data has changed. Would you like to continue "
                                     "closing the document \"%1\"?");
    else if (state.isJobRunning)
        return {};
    else if (subject.isNew)
        return messageText(QT_TRANSLATE_NOOP("ZVSaveDialog",
                                             "Do you want to save the changes to a new file prior "
                                             "to closing?"));
    return messageText(question).arg(richName(subject.name), 0, QLatin1Char(' '));
}

/** What a running simulation refuses; empty for nothing. */
QString refusalFor(ZVSaveDialog::Action action)
{
    switch (action) {
    case ZVSaveDialog::ActionSave:
        return messageText(QT_TRANSLATE_NOOP("ZVSaveDialog",
                                             "Saving is not allowed. Either kill simulation first "
                                             "or save to another file."));
    case ZVSaveDialog::ActionStart:
        return messageText(
            QT_TRANSLATE_NOOP("ZVSaveDialog", "Starting is not allowed. Kill simulation first."));
    case ZVSaveDialog::ActionClose:
        return messageText(QT_TRANSLATE_NOOP("ZVSaveDialog",
                                             "Saving is not allowed, because the current design "
                                             "is still running a simulation."));
    case ZVSaveDialog::ActionProceed:
        break;
    }
    return {};
}

QString listItem(const QString& label, const QString& text)
{
    return QStringLiteral("<li><b>") + label + QStringLiteral("</b> ") + text +
           QStringLiteral("</li>");
}

/** A headline with a list, which may have no items; empty for neither. */
QString consequencesFor(const SaveState& state, ZVSaveDialog::Action action)
{
    QString headline;
    QString items;
    if (state.isJobRunning) {
        headline = refusalFor(action);
        if (headline.isEmpty())
            return {};
    } else {
        headline = messageText(QT_TRANSLATE_NOOP(
            "ZVSaveDialog", "If you confirm this action the consequences will be"));
        if (willDropResults(state, action))
            items +=
                listItem(messageText(QT_TRANSLATE_NOOP("ZVSaveDialog", "Delete:")),
                         messageText(QT_TRANSLATE_NOOP(
                             "ZVSaveDialog", "The simulation results are deleted from the file.")));
        if (!state.isCurrentVersion)
            items += listItem(
                messageText(QT_TRANSLATE_NOOP("ZVSaveDialog", "Convert:")),
                messageText(QT_TRANSLATE_NOOP(
                    "ZVSaveDialog", "The design will be converted to the current version.")));
    }
    return headline + QStringLiteral("<ul>") + items + QStringLiteral("</ul>");
}

} // namespace

QString saveMessageFor(const SaveState& state, ZVSaveDialog::Action action,
                       const SaveSubject& subject)
{
    const QString question =
        action == ZVSaveDialog::ActionClose ? questionFor(state, subject) : QString();
    const QString consequences = subject.isNew ? QString() : consequencesFor(state, action);

    QString html = QStringLiteral("<html><body><div>") +
                   messageText(s_factTexts[factsFor(state, action)]) + QStringLiteral("</div>");
    for (const QString& part : {question, consequences})
        if (!part.isEmpty())
            html += QStringLiteral("<br><div>") + part + QStringLiteral("</div>");
    return html + QStringLiteral("</body></html>");
}

} // namespace Zorvane
