#include "Workbench/Window/WindowLayout.h"

#include "Workbench/Screens/ScreenFit.h"
#include "Workbench/Window/LastColumn.h"
#include "Workbench/Window/ProblemsPanel.h"
#include "Workbench/Window/ScaledColumns.h"

#include <QtGui/QFontMetrics>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr int s_digitsAcross = 170;
constexpr int s_digitsDown = 102;

QVBoxLayout* layOutTightly(QWidget* widget)
{
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

/** The first takes what is left over. */
QSplitter* stack(QWidget* first, QWidget* second, QWidget* parent)
{
    auto* splitter = new QSplitter(Qt::Vertical, parent);
    splitter->addWidget(first);
    splitter->addWidget(second);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    return splitter;
}

} // namespace

WindowLayout::WindowLayout(const Parts& parts, QWidget* central)
    : QObject(central)
    , m_parts(parts)
    , m_central(central)
    , m_sides(new QSplitter(Qt::Horizontal, central))
{
    m_sides->addWidget(createTreeSide());
    m_sides->addWidget(createMeshSide());
    m_sides->setStretchFactor(0, 5);
    m_sides->setStretchFactor(1, 4);
    m_allAndProblems = stack(m_sides, parts.problems, central);
    parts.problems->hide();
    for (QSplitter* splitter : {m_sides, m_meshAndDetails, m_allAndProblems})
        splitter->setChildrenCollapsible(false);
    QVBoxLayout* const layout = layOutTightly(central);
    layout->addWidget(parts.messages);
    layout->addWidget(m_allAndProblems, 1);
}

/** All widths follow the font: they are told in digits of it. */
double WindowLayout::digitWidth() const
{
    return m_central->fontMetrics().horizontalAdvance(QLatin1Char('0'));
}

QSize WindowLayout::usualSize() const
{
    const double unit = digitWidth();
    return fittedToScreen(*m_central, QSize(int(s_digitsAcross * unit), int(s_digitsDown * unit)));
}

QWidget* WindowLayout::createTreeSide()
{
    QHeaderView* const header = m_parts.tree->header();
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const double widths[] = {26.5, 14.5, 7, 8.25, 19.75, 13, 9.25, 12};
    // Titles of other languages may need more.
    for (int column = 0; column < header->count(); ++column)
        header->resizeSection(
            column, std::max(int(widths[column] * digitWidth()), header->sectionSizeHint(column)));
    new ScaledColumns(m_parts.tree);
    new LastColumn(m_parts.tree);
    auto* side = new QWidget(m_sides);
    QVBoxLayout* const layout = layOutTightly(side);
    layout->addWidget(m_parts.filter);
    layout->addWidget(m_parts.tree, 1);
    return side;
}

QWidget* WindowLayout::createMeshSide()
{
    auto* properties = new QWidget(m_sides);
    QVBoxLayout* const layout = layOutTightly(properties);
    layout->addWidget(m_parts.details, 1);
    layout->addWidget(m_parts.quantities);
    m_meshAndDetails = stack(m_parts.mesh, properties, m_sides);
    return m_meshAndDetails;
}

void WindowLayout::divide(const QSize& size)
{
    m_sides->setSizes({size.width() * 69 / 100, size.width() * 31 / 100});
    m_meshAndDetails->setSizes({size.height() * 60 / 100, size.height() * 30 / 100});
}

void WindowLayout::fitProblems()
{
    ProblemsPanel* const panel = m_parts.problems;
    const int now = m_allAndProblems->sizes().last();
    const bool appears = panel->isHidden();
    panel->setVisible(!panel->problems().empty());
    // Once the user has moved the splitter, it stays.
    if (panel->isHidden() || (!appears && now != m_fittedProblemsHeight))
        return;
    const int height = panel->sizeHint().height();
    m_allAndProblems->setSizes({m_allAndProblems->height() - height, height});
    m_fittedProblemsHeight = m_allAndProblems->sizes().last();
}

QByteArray WindowLayout::saveState() const
{
    return m_sides->saveState();
}

void WindowLayout::restoreState(const QByteArray& state)
{
    m_sides->restoreState(state);
}

} // namespace Zorvane::Workbench
