#include "Workbench/Window/LastColumn.h"

#include <QtCore/QEvent>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr int s_mostDigits = 30;

} // namespace

LastColumn::LastColumn(QTreeView* view)
    : QObject(view)
    , m_view(view)
    , m_header(view->header())
{
    m_header->viewport()->installEventFilter(this);
    connect(m_header, &QHeaderView::sectionResized, this, &LastColumn::fit);
    connect(m_header, &QHeaderView::sectionMoved, this, &LastColumn::fit);
    // Often many rows are expanded at once.
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &LastColumn::fit);
    connect(view, &QTreeView::expanded, &m_soon, QOverload<>::of(&QTimer::start));
    fit();
}

bool LastColumn::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        fit();
    return QObject::eventFilter(watched, event);
}

int LastColumn::neededWidth(int last) const
{
    // The view keeps its own answer from others, the views' common base does not.
    const QAbstractItemView& view = *m_view;
    const int most = s_mostDigits * m_view->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    return std::max(m_header->sectionSizeHint(last), std::min(view.sizeHintForColumn(last), most));
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
    const int needed = neededWidth(last);
    m_header->setStretchLastSection(room >= needed);
    // Not every platform's header stretches it by itself.
    const int width = std::max(room, needed);
    if (m_header->sectionSize(last) != width)
        m_header->resizeSection(last, width);
}

} // namespace Zorvane::Workbench
