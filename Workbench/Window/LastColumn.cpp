#include "Workbench/Window/LastColumn.h"

#include <QtCore/QEvent>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace Zorvane::Workbench {

LastColumn::LastColumn(QTreeView* view)
    : QObject(view)
    , m_header(view->header())
{
    m_header->viewport()->installEventFilter(this);
    connect(m_header, &QHeaderView::sectionResized, this, &LastColumn::fit);
    connect(m_header, &QHeaderView::sectionMoved, this, &LastColumn::fit);
    fit();
}

bool LastColumn::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        fit();
    return QObject::eventFilter(watched, event);
}

void LastColumn::fit()
{
    if (m_isFitting)
        return;
    const QScopedValueRollback<bool> fitting(m_isFitting, true);
    // The user may have moved another one there.
    const int last = m_header->logicalIndex(m_header->count() - 1);
    const int others = m_header->length() - m_header->sectionSize(last);
    const int room = m_header->viewport()->width() - others;
    const int needed = m_header->sectionSizeHint(last);
    m_header->setStretchLastSection(room >= needed);
    // Not every platform's header stretches it by itself.
    const int width = std::max(room, needed);
    if (m_header->sectionSize(last) != width)
        m_header->resizeSection(last, width);
}

} // namespace Zorvane::Workbench
