#include "Workbench/Tour/QuestionSteps.h"

#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Saving/DesignSaving.h"
#include "Workbench/Tour/BoxGallery.h"
#include "Workbench/Tour/DialogAnswers.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/MessageBar.h"

#include <QtCore/QFile>
#include <QtWidgets/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

namespace Zorvane::Workbench {

namespace {

bool replaceInFile(const QString& path, const QByteArray& before, const QByteArray& after)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    QByteArray text = file.readAll();
    if (!text.contains(before))
        return false;
    text.replace(before, after);
    return file.resize(0) && file.seek(0) && file.write(text) == text.size();
}

} // namespace

void QuestionSteps::perform()
{
    askAboutChangesOfOthers();
    callAnUndefinedAction();
}

void QuestionSteps::askAboutChangesOfOthers()
{
    m_report.beginStep(QStringLiteral("Two at one design"),
                       QStringLiteral("Another program changes the file of a design with unsaved "
                                      "changes: ours stay until we say which to keep."));
    DesignSession& session = m_window.session();
    const GUIdentifier id = session.designs().front().id;
    session.rename(session.designs().front().blank->id, QStringLiteral("Round blank 180 mm"));
    m_report.expect(replaceInFile(session.findDesign(id)->file, "OP10 Draw", "OP10 First draw"),
                    QStringLiteral("the file is written"));
    m_report.expect(m_driver.waitFor([&] { return session.hasConflict(id); }),
                    QStringLiteral("the conflict is seen"));
    m_report.expect(m_window.messageBar().text().startsWith(QStringLiteral("Another program")),
                    m_window.messageBar().text());
    picture(QStringLiteral("changed-by-two"));
    applyAppearance(*qApp, Appearance::Dark);
    picture(QStringLiteral("changed-by-two-dark"));
    applyAppearance(*qApp, Appearance::Light);

    BoxGallery gallery;
    m_report.expect(gallery.collect([&] { m_window.saving().save(id); }),
                    QStringLiteral("asked before theirs is replaced"));
    m_report.expect(
        gallery.collect([this] { m_window.commands()[ZVMainActions::ReOpen]->trigger(); }),
        QStringLiteral("asked before ours are dropped"));
    m_report.expect(
        gallery.collect([this] { m_window.commands()[WorkbenchActions::ReopenAll]->trigger(); }),
        QStringLiteral("asked before those of all designs are dropped"));
    m_report.expect(session.isDesignModified(id), QStringLiteral("nothing is lost yet"));
    session.revert(id);
    m_report.expect(!session.hasConflict(id), QStringLiteral("theirs, once ours are dropped"));
    m_report.addPicture(QStringLiteral("questions-about-changes"), gallery.light());
    m_report.addPicture(QStringLiteral("questions-about-changes-dark"), gallery.dark());
}

void QuestionSteps::callAnUndefinedAction()
{
    m_report.beginStep(QStringLiteral("A command without an action"),
                       QStringLiteral("A number that the table of commands has no action for "
                                      "warns instead of doing nothing."));
    DialogAnswers answers;
    answers.add([this](QDialog& box) {
        pictureInBoth(QStringLiteral("undefined-action"), box);
        box.reject();
    });
    ZVMainActions::getInstance()
        ->action(ZVMainActions::ExportForCorvashel_DISCONTINUED_DO_NOT_USE)
        ->trigger();
    m_report.expect(answers.allGiven(), QStringLiteral("the warning"));
}

} // namespace Zorvane::Workbench
