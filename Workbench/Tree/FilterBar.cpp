#include "Workbench/Tree/FilterBar.h"

#include "Host/ApplicationWidgets/SvgIcon.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAction>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

namespace {

/** Stays open while entries are checked, by the mouse or the space bar: often several are meant. */
class CheckMenu : public QMenu
{
public:
    using QMenu::QMenu;

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        m_isPressed = rect().contains(event->pos());
        QMenu::mousePressEvent(event);
    }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        // The click that opened the menu is released here, too, and chooses nothing.
        if (!std::exchange(m_isPressed, false) || !toggle(actionAt(event->pos())))
            QMenu::mouseReleaseEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_Space || !toggle(activeAction()))
            QMenu::keyPressEvent(event);
    }

private:
    static bool toggle(QAction* action)
    {
        if (!action || !action->isCheckable() || !action->isEnabled())
            return false;
        action->trigger();
        return true;
    }

    bool m_isPressed = false;
};

} // namespace

FilterBar::FilterBar(QWidget* parent)
    : QWidget(parent)
    , m_text(new QLineEdit(this))
    , m_kinds(new QToolButton(this))
{
    m_text->setPlaceholderText(tr("Filter by name, kind or file"));
    m_text->setAccessibleName(tr("Filter text"));
    m_text->setAccessibleDescription(
        tr("Shows only objects whose name, kind or file contains every word."));
    m_text->setClearButtonEnabled(true);
    m_kinds->setPopupMode(QToolButton::InstantPopup);
    m_kinds->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_kinds->setFocusPolicy(Qt::StrongFocus);
    m_kinds->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    addKinds();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_kinds);
    connect(m_text, &QLineEdit::textChanged, this, &FilterBar::textChanged);
    auto* escape = new QShortcut(Qt::Key_Escape, m_text, nullptr, nullptr, Qt::WidgetShortcut);
    connect(escape, &QShortcut::activated, m_text, &QLineEdit::clear);
}

void FilterBar::addKinds()
{
    auto* menu = new CheckMenu(m_kinds);
    for (const ObjectKind kind : s_filterableKinds) {
        QAction* action = menu->addAction(createSvgIcon(iconPath(kind)), pluralText(kind));
        action->setCheckable(true);
        action->setChecked(true);
        connect(action, &QAction::toggled, this, [this, kind](bool shown) {
            describeKinds();
            Q_EMIT kindToggled(kind, shown);
        });
        m_kindActions[kind] = action;
    }
    menu->addSeparator();
    connect(menu->addAction(tr("Show all")), &QAction::triggered, this, &FilterBar::showAllKinds);
    m_kinds->setMenu(menu);
    describeKinds();
}

void FilterBar::describeKinds()
{
    const auto shown = std::count_if(m_kindActions.begin(), m_kindActions.end(),
                                     [](const auto& entry) { return entry.second->isChecked(); });
    const bool all = std::size_t(shown) == m_kindActions.size();
    m_kinds->setText(all ? tr("All kinds")
                         : tr("%1 of %2 kinds").arg(shown).arg(m_kindActions.size()));
    m_kinds->setAccessibleName(tr("Kinds shown: %1").arg(m_kinds->text()));
    m_kinds->setToolTip(tr("Choose the kinds of objects that the tree shows"));
}

void FilterBar::setText(const QString& text)
{
    m_text->setText(text);
}

void FilterBar::setKindShown(ObjectKind kind, bool shown)
{
    const auto found = m_kindActions.find(kind);
    if (found != m_kindActions.end())
        found->second->setChecked(shown);
}

void FilterBar::showAllKinds()
{
    for (const auto& entry : m_kindActions)
        entry.second->setChecked(true);
}

void FilterBar::focusText()
{
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

} // namespace Zorvane::Workbench
