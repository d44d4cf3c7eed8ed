#include "Workbench/Window/ProblemsPanel.h"

#include "Host/ApplicationWidgets/SvgIcon.h"
#include "Workbench/Window/ScaledColumns.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr int s_mostRowsShown = 6;

} // namespace

ProblemsPanel::ProblemsPanel(QWidget* parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_list(new QTreeWidget(this))
{
    m_title->setContentsMargins(8, 4, 8, 4);
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_title->setText(tr("Problems"));
    m_list->setAccessibleName(tr("Problems"));
    m_list->setHeaderLabels({tr("File"), tr("Place"), tr("Reason")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->header()->setStretchLastSection(true);
    new ScaledColumns(m_list);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_title);
    layout->addWidget(m_list, 1);
    connect(m_list, &QTreeWidget::itemActivated, this,
            [this](QTreeWidgetItem* item) { activateRow(m_list->indexOfTopLevelItem(item)); });
    auto* copy = new QShortcut(QKeySequence::Copy, m_list, nullptr, nullptr, Qt::WidgetShortcut);
    connect(copy, &QShortcut::activated, this, &ProblemsPanel::copyCurrent);
}

void ProblemsPanel::show(const Problems& problems)
{
    if (problems == m_problems)
        return;
    m_problems = problems;
    const int current = m_list->indexOfTopLevelItem(m_list->currentItem());
    m_list->clear();
    const QIcon icon = createSvgIcon(QStringLiteral(":/workbench/problem.svg"));
    for (const Problem& problem : problems) {
        auto* item = new QTreeWidgetItem(
            m_list, {QFileInfo(problem.file).fileName(), problem.where, problem.reason});
        item->setIcon(0, icon);
        item->setToolTip(0, QDir::toNativeSeparators(problem.file));
        item->setToolTip(1, problem.where);
        item->setToolTip(2, problem.reason);
    }
    m_title->setText(tr("Problems (%1)").arg(problems.size()));
    m_list->resizeColumnToContents(0);
    m_list->resizeColumnToContents(1);
    m_list->setCurrentItem(m_list->topLevelItem(current));
}

QSize ProblemsPanel::sizeHint() const
{
    const int rows = std::clamp(m_list->topLevelItemCount(), 2, s_mostRowsShown);
    const int row = std::max(m_list->sizeHintForRow(0), fontMetrics().height());
    const int height =
        m_title->sizeHint().height() + m_list->header()->sizeHint().height() + rows * row + row / 2;
    return {QWidget::sizeHint().width(), height};
}

void ProblemsPanel::activateRow(int row)
{
    if (row >= 0 && row < int(m_problems.size()))
        Q_EMIT activated(m_problems[std::size_t(row)]);
}

void ProblemsPanel::copyCurrent() const
{
    const int row = m_list->indexOfTopLevelItem(m_list->currentItem());
    if (row >= 0)
        QGuiApplication::clipboard()->setText(m_problems[std::size_t(row)].text());
}

} // namespace Zorvane::Workbench
