#include "Workbench/Window/ScaledColumns.h"

#include <QtCore/QEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace Zorvane::Workbench {

ScaledColumns::ScaledColumns(QTreeView* view)
    : QObject(view)
    , m_view(view)
    , m_digitWidth(digitWidth())
{
    view->installEventFilter(this);
}

bool ScaledColumns::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        scale();
    return QObject::eventFilter(watched, event);
}

void ScaledColumns::scale()
{
    const double factor = double(digitWidth()) / m_digitWidth;
    m_digitWidth = digitWidth();
    QHeaderView* const header = m_view->header();
    // A last one that takes what is left over does so by itself.
    const int count = header->count() - (header->stretchLastSection() ? 1 : 0);
    for (int column = 0; column < count; ++column)
        header->resizeSection(column, qRound(factor * header->sectionSize(column)));
}

int ScaledColumns::digitWidth() const
{
    return std::max(1, m_view->fontMetrics().horizontalAdvance(QLatin1Char('0')));
}

} // namespace Zorvane::Workbench
