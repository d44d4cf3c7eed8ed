#include "Workbench/Window/WindowMenus.h"

#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Texts/MenuText.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/RecentPaths.h"
#include "Workbench/Window/SampleDesigns.h"

#include <QtCore/QDir>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include <utility>

namespace Zorvane::Workbench {

namespace {

/** One line for each choice, of which one is in force. */
template <typename Choice, std::size_t count, typename Operation>
void addChoices(QMenu& menu, const std::pair<Choice, QString> (&choices)[count], Choice present,
                const Operation& choose)
{
    auto* group = new QActionGroup(&menu);
    for (const auto& [choice, text] : choices) {
        QAction* const action = menu.addAction(text);
        action->setCheckable(true);
        action->setChecked(choice == present);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &menu,
                         [choose, chosen = choice] { choose(chosen); });
    }
}

} // namespace

WindowMenus::WindowMenus(WindowCommands& commands)
    : QObject(&commands)
    , m_commands(commands)
{
    QMenu& recent = commands.subMenu(CommandSubMenu::Recent);
    connect(&recent, &QMenu::aboutToShow, this, [this, &recent] { showRecent(recent); });
    addSamples(commands.subMenu(CommandSubMenu::Samples));
    addModes(commands.subMenu(CommandSubMenu::Mode));
    addAppearances(commands.subMenu(CommandSubMenu::Appearance));
}

void WindowMenus::addPath(QMenu& menu, const QString& text, const QString& path)
{
    QAction* const action = menu.addAction(menuText(text));
    action->setToolTip(QDir::toNativeSeparators(path));
    connect(action, &QAction::triggered, this, [this, path] { Q_EMIT chosen({path}); });
}

void WindowMenus::addSamples(QMenu& menu)
{
    for (const SampleDesign& sample : sampleDesigns())
        addPath(menu, sample.name, sample.folder);
    menu.setEnabled(!menu.isEmpty());
}

void WindowMenus::addModes(QMenu& menu)
{
    const std::pair<WindowMode, QString> modes[] = {{WindowMode::Forming, tr("&Forming")},
                                                    {WindowMode::Tube, tr("&Tube")},
                                                    {WindowMode::Tandrel, tr("Tan&drel")}};
    addChoices(menu, modes, m_commands.mode(),
               [this](WindowMode mode) { m_commands.setMode(mode); });
}

void WindowMenus::addAppearances(QMenu& menu)
{
    const std::pair<Appearance, QString> appearances[] = {{Appearance::System, tr("&System")},
                                                          {Appearance::Light, tr("&Light")},
                                                          {Appearance::Dark, tr("&Dark")}};
    addChoices(menu, appearances, storedAppearance(), [this](Appearance appearance) {
        applyAppearance(*qApp, appearance);
        if (!storeAppearance(appearance))
            Q_EMIT notStored();
    });
}

void WindowMenus::showRecent(QMenu& menu)
{
    menu.clear();
    menu.setToolTipsVisible(true);
    for (const QString& path : RecentPaths::paths())
        addPath(menu, QDir::toNativeSeparators(path), path);
    if (menu.isEmpty())
        menu.addAction(tr("Nothing opened yet"))->setEnabled(false);
    menu.addSeparator();
    connect(menu.addAction(tr("Clear")), &QAction::triggered, this, [this] {
        if (!RecentPaths::clear())
            Q_EMIT notStored();
    });
}

} // namespace Zorvane::Workbench
