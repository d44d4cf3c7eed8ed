#include "Workbench/Tour/CommandSteps.h"

#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Help/HelpWindow.h"
#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Tour/DialogAnswers.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

namespace Zorvane::Workbench {

using Main = ZVMainActions;

void CommandSteps::perform()
{
    useShortcuts();
    showOnlyGeometry();
    showMenus();
    readHelp();
}

void CommandSteps::useShortcuts()
{
    m_report.beginStep(QStringLiteral("Views by keyboard"),
                       QStringLiteral("One key for each side, keys to roll and to flip, and one to "
                                      "go back."));
    m_driver.select(ObjectKind::Part, QStringLiteral("Door panel"));
    m_driver.waitFor([this] { return m_window.meshView().hasMesh(); });
    const OrbitCamera& camera = m_window.meshView().camera();
    m_window.commands()[Main::ViewFromPosZAndFitScene]->trigger();
    m_report.expect(camera.pitch() == 90, QStringLiteral("from above"));
    m_window.commands()[Main::RotateViewAroundZ]->trigger();
    m_report.expect(camera.rolled() == 90, QStringLiteral("rolled by 90 degrees"));
    m_window.commands()[Main::ViewLast]->trigger();
    m_report.expect(camera.rolled() == 0, QStringLiteral("the last view again"));
    m_window.commands()[Main::ViewRotatedIsometricAndFitScene]->trigger();
    picture(QStringLiteral("from-the-other-corner"));
}

void CommandSteps::showOnlyGeometry()
{
    m_report.beginStep(QStringLiteral("Only the geometry"),
                       QStringLiteral("Blanks, tools and surfaces go for the time being, and what "
                                      "was shown before comes back."));
    QAction* const only = m_window.commands()[WorkbenchActions::ShowOnlyGeometry];
    const int before = m_window.tree().pipeline().shownCount();
    only->trigger();
    m_driver.settle();
    m_report.expect(m_window.tree().pipeline().shownCount() < before,
                    QStringLiteral("fewer objects"));
    m_report.expect(m_window.meshView().look() == MeshLook::Outlines, QStringLiteral("outlines"));
    picture(QStringLiteral("only-geometry"));
    only->trigger();
    m_driver.settle();
    m_report.expect(m_window.tree().pipeline().shownCount() == before,
                    QStringLiteral("all objects again"));
    m_window.commands()[Main::ShowMirroredSheet]->trigger();
    m_window.commands()[Main::ViewFitToWindow]->trigger();
    m_report.expect(m_window.meshView().sides().mirrored, QStringLiteral("with its mirror image"));
    picture(QStringLiteral("mirror-image"));
    m_window.commands()[Main::ShowMirroredSheet]->trigger();
    m_window.commands()[Main::ViewFitToWindow]->trigger();
}

void CommandSteps::showMenus()
{
    m_report.beginStep(QStringLiteral("Menus"),
                       QStringLiteral("The commands of the suite's tables with their shortcuts; "
                                      "the Display menu follows the mode."));
    const auto menus = [this] {
        QImage whole = m_driver.picture();
        QPainter painter(&whole);
        int left = 0;
        for (const int place : {2, 3}) {
            QMenu* const menu = m_window.menuBar()->actions().at(place)->menu();
            menu->ensurePolished();
            menu->resize(menu->sizeHint());
            painter.drawPixmap(left, m_window.menuBar()->height(), menu->grab());
            left += menu->width() + 8;
        }
        return whole;
    };
    m_report.addPicture(QStringLiteral("menus"), menus());
    m_window.commands().setMode(WindowMode::Tube);
    applyAppearance(*qApp, Appearance::Dark);
    m_driver.settle();
    m_report.expect(!m_window.actions().contains(m_window.commands()[Main::ShowSheet]) &&
                        m_window.actions().contains(m_window.commands()[Main::ShowFormedTube]),
                    QStringLiteral("tubes in place of sheets"));
    m_report.addPicture(QStringLiteral("menus-of-tubes-dark"), menus());
    applyAppearance(*qApp, Appearance::Light);
    m_window.commands().setMode(WindowMode::Forming);
    m_driver.settle();
}

void CommandSteps::readHelp()
{
    m_report.beginStep(QStringLiteral("Help"),
                       QStringLiteral("F1 opens the documentation; Help > About tells what "
                                      "this is."));
    m_window.commands()[ZVGlobalActions::HelpContents]->trigger();
    auto* const help = m_window.findChild<HelpWindow*>();
    m_report.expect(help && help->currentPage() == QStringLiteral("Workbench.md"),
                    QStringLiteral("the page about the Workbench"));
    if (!help)
        return;
    m_driver.settle();
    pictureInBoth(QStringLiteral("help"), *help);
    delete help;
    m_window.activateWindow();
    m_report.expect(m_driver.waitFor([this] { return m_window.isActiveWindow(); }),
                    QStringLiteral("the main window again"));
    DialogAnswers answers;
    answers.add([this](QDialog& about) {
        pictureInBoth(QStringLiteral("about"), about);
        about.reject();
    });
    m_window.commands()[WorkbenchActions::About]->trigger();
    m_report.expect(answers.allGiven(), QStringLiteral("what program this is"));
}

} // namespace Zorvane::Workbench
