#include "Workbench/Tour/SaveSteps.h"

#include "Workbench/Saving/DesignSaving.h"
#include "Workbench/Solver/SimulationRunner.h"
#include "Workbench/Tour/BoxGallery.h"
#include "Workbench/Tour/DialogAnswers.h"
#include "Workbench/Undo/EditHistory.h"
#include "Workbench/Window/MainWindow.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAction>
#include <QtWidgets/QMessageBox>

#include <functional>

namespace Zorvane::Workbench {

namespace {

/** Far more than the tour waits for. */
constexpr int s_endlessSteps = 1'000'000;
constexpr int s_shortSteps = 20;

bool makeVersion1(const QString& file)
{
    QFile design(file);
    if (!design.open(QIODevice::ReadWrite))
        return false;
    QByteArray text = design.readAll();
    text.replace("\"version\": 2", "\"version\": 1");
    return design.resize(0) && design.seek(0) && design.write(text) == text.size();
}

} // namespace

void SaveSteps::perform()
{
    m_window.session().close();
    const QString folder = workFolder(QStringLiteral("drawn-cup"));
    const bool isFresh =
        QDir(folder).removeRecursively() && copySample(QStringLiteral("drawn-cup"));
    reopen({folder});
    m_driver.waitUntilRead();
    askBeforeSaving();
    m_report.expect(isFresh, QStringLiteral("the sample as it came"));
    runASimulation();
    undoAndRedo();
}

void SaveSteps::askBeforeSaving()
{
    m_report.beginStep(QStringLiteral("Asked before it is too late"),
                       QStringLiteral("What is asked before a design is closed, saved or computed: "
                                      "with changes, with results that no longer fit, of an "
                                      "older version, and while its simulation is running."));
    DesignSaving& saving = m_window.saving();
    DesignSession& session = m_window.session();
    const GUIdentifier id = session.designs().front().id;
    const GUIdentifier blank = session.designs().front().blank->id;
    BoxGallery gallery;
    const auto show = [&](const QString& what, const std::function<void()>& command) {
        m_report.expect(gallery.collect(command), what);
    };
    session.rename(blank, QStringLiteral("Round blank 180 mm"));
    show(QStringLiteral("closing with changes"), [&] { saving.mayClose(); });
    show(QStringLiteral("starting with results"), [&] { saving.start(id); });
    session.setQuantity(blank, Quantity::Thickness, 1.2);
    show(QStringLiteral("saving with outdated results"), [&] { saving.save(id); });
    session.revert(id);

    m_report.expect(makeVersion1(session.findDesign(id)->file), QStringLiteral("an older file"));
    session.revert(id);
    show(QStringLiteral("saving an older version"), [&] { saving.save(id); });
    m_report.expect(session.save(id, DesignSession::OnConflict::Refuse).empty(),
                    QStringLiteral("the design in the present version"));
    m_window.simulation().setSteps(s_endlessSteps);
    m_report.expect(!m_window.simulation().start(*session.findDesign(id)),
                    QStringLiteral("a simulation"));
    session.rename(blank, QStringLiteral("Round blank 180 mm"));
    show(QStringLiteral("saving while it runs"), [&] { saving.save(id); });
    show(QStringLiteral("starting while it runs"), [&] { saving.start(id); });
    show(QStringLiteral("closing while it runs"), [&] { saving.mayClose(); });
    session.revert(id);
    show(QStringLiteral("stopping it"), [&] { saving.mayClose(); });
    m_window.simulation().stop();
    m_report.addPicture(QStringLiteral("save-questions"), gallery.light());
    m_report.addPicture(QStringLiteral("save-questions-dark"), gallery.dark());
}

void SaveSteps::runASimulation()
{
    m_report.beginStep(QStringLiteral("A simulation"),
                       QStringLiteral("It runs beside everything else and can be stopped; at its "
                                      "end the design has the new results in place of the old."));
    DesignSession& session = m_window.session();
    SimulationRunner& runner = m_window.simulation();
    runner.setSteps(s_shortSteps);
    DialogAnswers answers;
    answers.add([](QDialog& box) {
        if (auto* question = qobject_cast<QMessageBox*>(&box))
            question->button(QMessageBox::Save)->click();
    });
    int done = 0;
    const auto progress = QObject::connect(&runner, &SimulationRunner::progressed, &m_window,
                                           [&done](int strokes, int) { done = strokes; });
    QAction* start = commandNamed(QStringLiteral("Compute"));
    if (start != nullptr)
        start->trigger();
    m_report.expect(runner.isRunning(), QStringLiteral("it runs"));
    m_report.expect(answers.allGiven(), QStringLiteral("the question about the results"));
    m_report.expect(m_driver.waitFor([&] { return done >= s_shortSteps / 2; }),
                    QStringLiteral("half of its strokes"));
    picture(QStringLiteral("simulation"));
    m_report.expect(m_driver.waitFor([&] { return !runner.isRunning(); }),
                    QStringLiteral("its end"));
    QObject::disconnect(progress);
    m_driver.waitUntilRead();
    const IDCombiner result =
        m_driver.find(ObjectKind::File, QStringLiteral("drawn-cup-simulation"));
    m_report.expect(result != IDCombiner(), QStringLiteral("the new results"));
    m_report.expect(!session.isModified(), QStringLiteral("all of it saved"));
    m_window.tree().select(result);
    m_driver.settle();
    picture(QStringLiteral("simulation-results"));
}

void SaveSteps::undoAndRedo()
{
    m_report.beginStep(QStringLiteral("Undo and redo"),
                       QStringLiteral("Every change of a design can be taken back, also after it "
                                      "was saved."));
    DesignSession& session = m_window.session();
    const GUIdentifier blank = session.designs().front().blank->id;
    const QString name = session.name(blank);
    session.rename(blank, QStringLiteral("Round blank 180 mm"));
    session.setQuantity(blank, Quantity::Thickness, 1.2);
    QAction* undo = commandNamed(QStringLiteral("Undo"));
    m_report.expect(undo && undo->isEnabled(), QStringLiteral("the command Undo"));
    m_window.history().undo();
    m_window.history().undo();
    m_report.expect(session.name(blank) == name && !session.isModified(),
                    QStringLiteral("the design as it was"));
    m_window.history().redo();
    m_report.expect(session.name(blank) == QStringLiteral("Round blank 180 mm"),
                    QStringLiteral("the new name again"));
    m_driver.waitUntilRead();
    picture(QStringLiteral("redone"));
    m_window.history().undo();
}

} // namespace Zorvane::Workbench
