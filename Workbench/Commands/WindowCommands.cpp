#include "Workbench/Commands/WindowCommands.h"

#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>

#include <tuple>
#include <utility>

namespace Zorvane::Workbench {

namespace {

constexpr int s_iconSize = 18;

/** Takes everything out; what the tables own stays alive. */
void removeAll(QWidget& widget)
{
    for (QAction* const action : widget.actions()) {
        widget.removeAction(action);
        if (action->isSeparator())
            delete action;
    }
}

/** The shortcut in a tool tip reads as it does in the menus: "Strg+S" in German. */
void showShortcutInUsersLanguage(QAction& action)
{
    const QString portable = action.shortcut().toString(QKeySequence::PortableText);
    QString toolTip = action.toolTip();
    if (portable.isEmpty() || !toolTip.endsWith(QLatin1Char(' ') + portable))
        return;
    toolTip.chop(portable.size());
    action.setToolTip(toolTip + action.shortcut().toString(QKeySequence::NativeText));
}

} // namespace

WindowCommands::WindowCommands(QMainWindow& window)
    : QObject(&window)
    , m_window(window)
    , m_own(nullptr)
{
    // The table's text is a key for translators, who may not have seen it.
    (*this)[ZVGlobalActions::HelpContents]->setText(tr("Help &Contents"));
    createMenus();
    createToolBars();
    fill();
}

QAction* WindowCommands::operator[](ZVGlobalActions::Actions id) const
{
    return (*ZVGlobalActions::instance())[id];
}

void WindowCommands::createMenus()
{
    const std::pair<CommandMenu, QString> menus[] = {
        {CommandMenu::File, tr("&File")},   {CommandMenu::Edit, tr("&Edit")},
        {CommandMenu::View, tr("&View")},   {CommandMenu::Display, tr("&Display")},
        {CommandMenu::Tools, tr("&Tools")}, {CommandMenu::Help, tr("&Help")}};
    for (const auto& [menu, title] : menus)
        m_menus[menu] = m_window.menuBar()->addMenu(title);
    const std::pair<CommandSubMenu, QString> subMenus[] = {
        {CommandSubMenu::Recent, tr("Open Recen&t")},
        {CommandSubMenu::Samples, tr("Open Sa&mple")},
        {CommandSubMenu::Directions, tr("&Directions")},
        {CommandSubMenu::Mode, tr("&Mode")},
        {CommandSubMenu::Appearance, tr("&Appearance")}};
    for (const auto& [menu, title] : subMenus)
        m_subMenus[menu] = new QMenu(title, &m_window);
    m_menus[CommandMenu::Directions] = m_subMenus.at(CommandSubMenu::Directions);
}

void WindowCommands::createToolBars()
{
    const std::tuple<CommandBar, QString, QString> bars[] = {
        {CommandBar::File, QStringLiteral("tools"), tr("File")},
        {CommandBar::View, QStringLiteral("view"), tr("View")},
        {CommandBar::Display, QStringLiteral("display"), tr("Display")}};
    for (const auto& [bar, name, title] : bars) {
        QToolBar* const created = m_window.addToolBar(title);
        created->setObjectName(name);
        created->setIconSize(QSize(s_iconSize, s_iconSize));
        m_bars[bar] = created;
    }
}

QAction* WindowCommands::actionOf(const Command& command) const
{
    switch (command.source) {
    case CommandSource::Main:
        return (*this)[ZVMainActions::Actions(command.id)];
    case CommandSource::Global:
        return (*this)[ZVGlobalActions::Actions(command.id)];
    case CommandSource::Workbench:
        return (*this)[WorkbenchActions::Actions(command.id)];
    case CommandSource::Separator:
    case CommandSource::SubMenu:
        break;
    }
    return nullptr;
}

void WindowCommands::setMode(WindowMode mode)
{
    if (mode == m_mode)
        return;
    empty();
    m_mode = mode;
    fill();
    Q_EMIT modeChanged();
}

void WindowCommands::fill()
{
    QList<int> mainIds;
    QList<int> globalIds;
    QList<int> ownIds;
    for (const Command& command : commandTable()) {
        if (!command.isIn(m_mode))
            continue;
        QMenu& menu = *m_menus.at(command.menu);
        QToolBar* const bar = command.bar == CommandBar::None ? nullptr : m_bars.at(command.bar);
        if (command.source == CommandSource::SubMenu) {
            menu.addMenu(m_subMenus.at(CommandSubMenu(command.id)));
            continue;
        }
        if (command.source == CommandSource::Separator) {
            menu.addSeparator();
            if (bar)
                bar->addSeparator();
            continue;
        }
        QAction* const action = actionOf(command);
        showShortcutInUsersLanguage(*action);
        menu.addAction(action);
        if (bar)
            bar->addAction(action);
        (command.source == CommandSource::Main     ? mainIds
         : command.source == CommandSource::Global ? globalIds
                                                   : ownIds)
            .append(command.id);
    }
    main().registerApplicationActions(mainIds, &m_window);
    ZVGlobalActions::instance()->registerApplicationActions(globalIds, &m_window);
    m_own.registerApplicationActions(ownIds, &m_window);
}

void WindowCommands::empty()
{
    for (const auto& entry : m_menus)
        removeAll(*entry.second);
    for (const auto& entry : m_bars)
        removeAll(*entry.second);
    removeAll(m_window);
}

} // namespace Zorvane::Workbench
