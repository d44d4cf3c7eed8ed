#include "Dialogs/SaveMessage.h"

#include "Host/Translation/Translator.h"
#include "Host/Widgets/TextWrapping.h"

#include <QtWidgets/QApplication>

#include <array>

namespace Zorvane {

namespace {

constexpr int s_nameWidth = 300;

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

bool isTheUnsavedToldOf(const SaveState& state, ZVSaveDialog::Action action)
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

int factsFor(const SaveState& state, ZVSaveDialog::Action action)
{
    int facts = 0;
    if (isTheUnsavedToldOf(state, action))
        facts |= SaveMessage::NotSaved;
    if (willDropResults(state, action))
        facts |= SaveMessage::HasResults;
    if (state.isJobRunning && action != ZVSaveDialog::ActionClose)
        facts |= SaveMessage::IsRunning;
    if (!state.isCurrentVersion)
        facts |= SaveMessage::IsOldVersion;
    return facts;
}

/** A name is not mark-up, whatever letters it has, and long ones are broken. */
QString richName(const QString& name)
{
    return wrapTextToFitWidth(name, QApplication::font("QMessageBox"), s_nameWidth)
        .toHtmlEscaped()
        .replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

QString questionFor(const SaveState& state, const SaveSubject& subject)
{
    QString question;
    if (!state.isCurrentVersion && state.hasEvaluationDataChanged)
        question = Translator::translate("ZVSaveDialog", "Evaluation Data has changed. Would you "
                                                         "like to continue closing the document "
                                                         "\"%1\"?");
    else if (state.isJobRunning)
        return {};
    else if (subject.isNew)
        return Translator::translate(
            "ZVSaveDialog", "Do you want to save the changes to a new file prior to closing?");
    else
        question = Translator::translate(
            "ZVSaveDialog", "Do you want to save the changes to \"%1\" prior to closing?");
    return question.arg(richName(subject.name), 0, QLatin1Char(' '));
}

/** Empty where a running simulation has nothing to be said about it. */
QString refusalFor(ZVSaveDialog::Action action)
{
    switch (action) {
    case ZVSaveDialog::ActionSave:
        return Translator::translate("ZVSaveDialog", "Saving is not allowed. Either kill "
                                                     "simulation first or save to another file.");
    case ZVSaveDialog::ActionStart:
        return Translator::translate("ZVSaveDialog",
                                     "Starting is not allowed. Kill simulation first.");
    case ZVSaveDialog::ActionClose:
        return Translator::translate("ZVSaveDialog",
                                     "Saving is not allowed, because the current design is still "
                                     "running a simulation.");
    case ZVSaveDialog::ActionProceed:
        break;
    }
    return {};
}

std::vector<SaveMessage::Entry> consequencesFor(const SaveState& state, ZVSaveDialog::Action action)
{
    std::vector<SaveMessage::Entry> entries;
    if (state.isJobRunning) {
        const QString refusal = refusalFor(action);
        if (!refusal.isEmpty())
            entries.push_back({{}, refusal});
        return entries;
    }
    entries.push_back({{},
                       Translator::translate(
                           "ZVSaveDialog", "If you confirm this action the consequences will be")});
    if (willDropResults(state, action))
        entries.push_back(
            {Translator::translate("ZVSaveDialog", "Delete:"),
             Translator::translate("ZVSaveDialog",
                                   "The simulation results are deleted from the file.")});
    if (!state.isCurrentVersion)
        entries.push_back(
            {Translator::translate("ZVSaveDialog", "Convert:"),
             Translator::translate("ZVSaveDialog",
                                   "The design will be converted to the current version.")});
    return entries;
}

} // namespace

bool willDropResults(const SaveState& state, ZVSaveDialog::Action action)
{
    return state.hasResults && (state.areResultsOutdated || state.areResultsLostByConversion ||
                                action == ZVSaveDialog::ActionStart);
}

SaveMessage saveMessageFor(const SaveState& state, ZVSaveDialog::Action action,
                           const SaveSubject& subject)
{
    SaveMessage message;
    message.facts = factsFor(state, action);
    if (action == ZVSaveDialog::ActionClose)
        message.question = questionFor(state, subject);
    if (!subject.isNew)
        message.consequences = consequencesFor(state, action);
    message.showsConsequences = !message.consequences.empty();
    return message;
}

QString SaveMessage::toHtml() const
{
    const char* factText = s_factTexts[std::size_t(facts)];
    QString html = QStringLiteral("<html><body><div>") +
                   Translator::translate("ZVSaveDialog", factText) + QStringLiteral("</div>");
    if (!question.isEmpty())
        html += QStringLiteral("<br><div>") + question + QStringLiteral("</div>");
    if (showsConsequences) {
        html += QStringLiteral("<br><div>") + consequences.front().text + QStringLiteral("<ul>");
        for (auto entry = consequences.begin() + 1; entry != consequences.end(); ++entry)
            html += QStringLiteral("<li><b>") + entry->label + QStringLiteral("</b> ") +
                    entry->text + QStringLiteral("</li>");
        html += QStringLiteral("</ul></div>");
    }
    return html + QStringLiteral("</body></html>");
}

} // namespace Zorvane
