#include "Tests/Dialogs/SaveRules.h"

#include <QtCore/QHash>

namespace Zorvane::Testing {

namespace {

QString text(const char* source)
{
    return QString::fromUtf8(source);
}

bool isOneOf(ZVSaveDialog::Action action, std::initializer_list<ZVSaveDialog::Action> actions)
{
    return std::find(actions.begin(), actions.end(), action) != actions.end();
}

const QString s_cancel = QStringLiteral("Cancel");
const QString s_dontSave = QStringLiteral("Don't Save");
const QString s_saveAs = QStringLiteral("Save As...");

QString saveText(const SaveCase& given)
{
    return given.action == ZVSaveDialog::ActionStart ? QStringLiteral("Start")
                                                     : QStringLiteral("Save");
}

void setSwitches(SaveCase& given, int bits)
{
    given.isSilent = bits & 1;
    given.isSaveDisabled = bits & 2;
    given.suppressesCancel = bits & 4;
    given.addsSaveAs = bits & 8;
}

bool losesResults(const SaveCase& given)
{
    if (!given.hasResults)
        return false;
    return given.action == ZVSaveDialog::ActionStart || given.isInputChanged ||
           given.isLostByConversion;
}

} // namespace

QString SaveCase::name() const
{
    static const char* const s_actions[] = {"save", "start", "close", "proceed"};
    QStringList words{text(s_actions[action])};
    const std::pair<bool, const char*> flags[] = {{isModified, "modified"},
                                                  {isRunning, "running"},
                                                  {hasResults, "results"},
                                                  {isOldVersion, "old"},
                                                  {isEvaluationChanged, "evaluation"},
                                                  {isInputChanged, "input"},
                                                  {isLostByConversion, "lost"},
                                                  {isNew, "new"},
                                                  {isSilent, "silent"},
                                                  {isSaveDisabled, "save disabled"},
                                                  {suppressesCancel, "no cancel"},
                                                  {addsSaveAs, "save as"}};
    for (const auto& [isSet, word] : flags)
        if (isSet)
            words.append(text(word));
    return words.join(QStringLiteral(", "));
}

void forEveryDesign(const std::function<void(const SaveCase&)>& check)
{
    for (int action = 0; action < 4; ++action) {
        for (int bits = 0; bits < designStates; ++bits) {
            SaveCase given;
            given.action = ZVSaveDialog::Action(action);
            given.isModified = bits & 1;
            given.isRunning = bits & 2;
            given.hasResults = bits & 4;
            given.isOldVersion = bits & 8;
            given.isEvaluationChanged = bits & 16;
            given.isInputChanged = bits & 32;
            given.isLostByConversion = bits & 64;
            given.isNew = bits & 128;
            check(given);
        }
    }
}

void forEverySwitch(const std::function<void(const SaveCase&)>& check)
{
    for (int action = 0; action < 4; ++action) {
        for (int bits = 0; bits < 2 * switchStates; ++bits) {
            SaveCase given;
            given.action = ZVSaveDialog::Action(action);
            setSwitches(given, bits);
            given.isRunning = bits & switchStates;
            check(given);
        }
    }
}

namespace SaveRules {

namespace {

/** The letters of the facts that are shown: u(nsaved), r(esults), j(ob running), o(ld version). */
QString facts(const SaveCase& given)
{
    QString letters;
    const bool mustBeSaved =
        isOneOf(given.action, {ZVSaveDialog::ActionClose, ZVSaveDialog::ActionProceed});
    if (mustBeSaved || (given.action == ZVSaveDialog::ActionStart && given.isModified))
        letters += QLatin1Char('u');
    if (losesResults(given))
        letters += QLatin1Char('r');
    if (given.isRunning && given.action != ZVSaveDialog::ActionClose)
        letters += QLatin1Char('j');
    if (given.isOldVersion)
        letters += QLatin1Char('o');
    return letters;
}

QString factText(const SaveCase& given)
{
    const char* const running = "The current design is still running a simulation.";
    static const QHash<QString, QString> s_texts = {
        {QString(), text("!")},
        {text("u"), text("The current design has not been saved since the last change.")},
        {text("r"), text("The current design contains simulation results.")},
        {text("o"), text("The current design was created with a previous version.")},
        {text("ur"), text("The current design has not been saved since the last change and "
                          "contains simulation results.")},
        {text("uo"), text("The current design has not been saved since the last change and was "
                          "created with a previous version.")},
        {text("ro"), text("The current design contains simulation results and was created with a "
                          "previous version.")},
        {text("uro"), text("The current design has not been saved since the last change, contains "
                           "simulation results and was created with a previous version.")},
        {text("uj"), text("The current design has not been saved since the last change and is "
                          "still running a simulation.")},
        {text("j"), text(running)},
        {text("rj"), text(running)},
        {text("urj"), text(running)},
        {text("jo"), text(running)},
        {text("ujo"), text(running)},
        // As shipped.
        {text("rjo"), text("%")},
        {text("urjo"), QString(QChar(0xFFFD))},
    };
    return s_texts.value(facts(given));
}

QString question(const SaveCase& given, const QString& name)
{
    if (given.action != ZVSaveDialog::ActionClose)
        return {};
    if (given.isOldVersion && given.isEvaluationChanged)
        return text("Evaluation Data has changed. Would you like to continue closing the document "
                    "\"") +
               name + text("\"?");
    if (given.isRunning)
        return {};
    if (given.isNew)
        return text("Do you want to save the changes to a new file prior to closing?");
    return text("Do you want to save the changes to \"") + name + text("\" prior to closing?");
}

QStringList consequences(const SaveCase& given)
{
    if (given.isNew)
        return {};
    if (given.isRunning) {
        static const QStringList s_refusals[] = {
            {text("Saving is not allowed. Either kill simulation first or save to another file.")},
            {text("Starting is not allowed. Kill simulation first.")},
            {text("Saving is not allowed, because the current design is still running a "
                  "simulation.")},
            {}};
        return s_refusals[given.action];
    }
    QStringList all{text("If you confirm this action the consequences will be")};
    if (losesResults(given))
        all.append(text("<b>Delete:</b> The simulation results are deleted from the file."));
    if (given.isOldVersion)
        all.append(text("<b>Convert:</b> The design will be converted to the current version."));
    return all;
}

} // namespace

QString html(const SaveCase& given, const QString& name)
{
    QStringList blocks{text("<div>%1</div>").arg(factText(given))};
    const QString asked = question(given, name);
    if (!asked.isEmpty())
        blocks.append(text("<div>%1</div>").arg(asked));
    QStringList list = consequences(given);
    if (!list.isEmpty()) {
        QString block = text("<div>") + list.takeFirst() + text("<ul>");
        for (const QString& point : std::as_const(list))
            block += text("<li>") + point + text("</li>");
        blocks.append(block + text("</ul></div>"));
    }
    return text("<html><body>") + blocks.join(text("<br>")) + text("</body></html>");
}

QStringList shownButtons(const SaveCase& given)
{
    QStringList shown;
    if (!given.suppressesCancel)
        shown.append(s_cancel);
    if (given.action == ZVSaveDialog::ActionClose)
        shown.append(s_dontSave);
    if (!given.isSaveDisabled && !given.isRunning)
        shown.append(saveText(given));
    switch (given.action) {
    case ZVSaveDialog::ActionSave:
    case ZVSaveDialog::ActionStart:
        if (!given.isSilent)
            shown.append(s_saveAs);
        break;
    case ZVSaveDialog::ActionClose:
        if (given.isSaveDisabled ? !given.isSilent : given.addsSaveAs)
            shown.append(s_saveAs);
        break;
    case ZVSaveDialog::ActionProceed:
        break;
    }
    return shown;
}

QString enter(const SaveCase& given)
{
    const QStringList shown = shownButtons(given);
    for (const QString& button : {saveText(given), s_cancel, s_saveAs})
        if (shown.contains(button))
            return button;
    return {};
}

bool canBeClosed(const SaveCase& given)
{
    // A box that has nothing to press can always be closed.
    return !given.suppressesCancel || shownButtons(given).isEmpty();
}

ZVSaveDialog::Result result(const SaveCase& given, const QString& button)
{
    static const QHash<QString, ZVSaveDialog::Result> s_results = {
        {QStringLiteral("Start"), ZVSaveDialog::ResultStart},
        {QStringLiteral("Save"), ZVSaveDialog::ResultSave},
        {s_saveAs, ZVSaveDialog::ResultSaveAs},
        {s_dontSave, ZVSaveDialog::ResultContinue}};
    return given.isSilent ? ZVSaveDialog::ResultContinue
                          : s_results.value(button, ZVSaveDialog::ResultCancel);
}

} // namespace SaveRules

} // namespace Zorvane::Testing
