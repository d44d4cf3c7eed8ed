#include "Workbench/Stress/StressWindow.h"

#include "Host/Widgets/ZVTreeViewPlaceKeeper.h"
#include "Workbench/Screens/ScreenFit.h"
#include "Workbench/Stress/TimeChart.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QShortcut>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTreeView>

#include <algorithm>
#include <utility>

namespace Zorvane::Workbench {

namespace {

constexpr int s_sizes[] = {1000, 10000, 100000};
constexpr std::uint32_t s_seed = 7;
constexpr std::size_t s_spreadMarks = 30;
constexpr std::size_t s_nearMarks = 8;
constexpr int s_usualRate = 10;
constexpr int s_usualEdits = 20;

struct EditRow
{
    StressEdit kind;
    const char* text;
    const char* explanation;
    bool usual;
};

// clang-format off
constexpr EditRow s_edits[] = {
    {StressEdit::Insert,  QT_TR_NOOP("&Insert"),  QT_TR_NOOP("New rows anywhere, until there are twice as many"), true},
    {StressEdit::Remove,  QT_TR_NOOP("Re&move"),  QT_TR_NOOP("Rows go, with what is below them"),               true},
    {StressEdit::Move,    QT_TR_NOOP("Mo&ve"),    QT_TR_NOOP("Rows go elsewhere among their siblings"),         true},
    {StressEdit::Rename,  QT_TR_NOOP("Re&name"),  QT_TR_NOOP("Rows get another text"),                          true},
    {StressEdit::Shuffle, QT_TR_NOOP("Sh&uffle"), QT_TR_NOOP("All siblings get another order"),                 false},
};
// clang-format on

/** The table belongs to no class: its texts are listed under the namespace. */
QString tableText(const char* text)
{
    return QCoreApplication::translate("Zorvane::Workbench", text);
}

QString counted(const Kept& kept, const QLocale& locale)
{
    return StressWindow::tr("%1 of %2")
        .arg(locale.toString(kept.kept), locale.toString(kept.expected));
}

} // namespace

StressWindow::StressWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_view(new QTreeView(this))
    , m_check(*m_view, m_run.model())
{
    setWindowTitle(tr("Stress a Tree"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_view->setAccessibleName(tr("Rows being edited"));
    m_view->setModel(&m_run.model());
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    new ZVTreeViewPlaceKeeper(m_view);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_view, 1);
    layout->addWidget(createSide());
    connect(&m_clock, &QTimer::timeout, this, &StressWindow::step);
    setRate(m_rate->value());
    for (const QKeySequence::StandardKey key : {QKeySequence::Close, QKeySequence::Cancel})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    resize(fittedToScreen(*this, QSize(130, 88) * digit));
    refill();
    m_startStop->setFocus();
}

// The view is deleted after the members of this class: it must not look at their model any more.
StressWindow::~StressWindow()
{
    delete m_view;
}

QWidget* StressWindow::createSide()
{
    auto* side = new QWidget(this);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(createTreeBox());
    layout->addWidget(createEditBox());
    layout->addWidget(createFactBox(), 1);
    side->setFixedWidth(50 * fontMetrics().horizontalAdvance(QLatin1Char('0')));
    return side;
}

QWidget* StressWindow::createTreeBox()
{
    auto* box = new QGroupBox(tr("Tree"), this);
    auto* form = new QFormLayout(box);
    m_size = new QComboBox(box);
    for (const int size : s_sizes)
        m_size->addItem(tr("%1 rows").arg(locale().toString(size)), size);
    m_shape = new QComboBox(box);
    m_shape->addItem(tr("Flat: all rows are siblings"), int(StressShape::Flat));
    m_shape->addItem(tr("Deep: ten rows a level"), int(StressShape::Deep));
    m_shape->setCurrentIndex(1);
    for (QComboBox* choice : {m_size, m_shape})
        connect(choice, qOverload<int>(&QComboBox::activated), this, &StressWindow::refill);
    form->addRow(tr("Si&ze:"), m_size);
    form->addRow(tr("S&hape:"), m_shape);
    return box;
}

QWidget* StressWindow::createEditBox()
{
    auto* box = new QGroupBox(tr("Edits"), this);
    auto* form = new QFormLayout(box);
    auto* kinds = new QGridLayout;
    for (const EditRow& row : s_edits) {
        auto* kind = new QCheckBox(tableText(row.text), box);
        kind->setToolTip(tableText(row.explanation));
        kind->setAccessibleDescription(kind->toolTip());
        kind->setChecked(row.usual);
        const int place = int(m_kinds.size());
        kinds->addWidget(kind, place / 3, place % 3);
        m_kinds[row.kind] = kind;
    }
    form->addRow(kinds);
    m_editsPerStep = new QSpinBox(box);
    m_editsPerStep->setRange(1, 10000);
    m_editsPerStep->setValue(s_usualEdits);
    m_rate = new QSpinBox(box);
    m_rate->setRange(1, 100);
    m_rate->setValue(s_usualRate);
    connect(m_rate, qOverload<int>(&QSpinBox::valueChanged), this, &StressWindow::setRate);
    form->addRow(tr("&Edits a refresh:"), m_editsPerStep);
    form->addRow(tr("&Refreshes a second:"), m_rate);
    addButtons(*form);
    return box;
}

void StressWindow::addButtons(QFormLayout& form)
{
    m_startStop = new QPushButton(tr("&Start"), this);
    m_startStop->setCheckable(true);
    m_startStop->setDefault(true);
    connect(m_startStop, &QPushButton::toggled, this, &StressWindow::setRunning);
    auto* once = new QPushButton(tr("&One Refresh"), this);
    connect(once, &QPushButton::clicked, this, &StressWindow::step);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_startStop, 1);
    buttons->addWidget(once, 1);
    form.addRow(buttons);
}

QLabel* StressWindow::addFact(QFormLayout& form, const QString& title, const QString& explanation)
{
    auto* value = new QLabel(this);
    value->setAlignment(Qt::AlignRight);
    value->setToolTip(explanation);
    auto* label = new QLabel(title, this);
    label->setToolTip(explanation);
    form.addRow(label, value);
    return value;
}

QWidget* StressWindow::createFactBox()
{
    auto* box = new QGroupBox(tr("Refreshes"), this);
    auto* layout = new QVBoxLayout(box);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_rows = addFact(*form, tr("Rows:"), tr("How many rows there are now"));
    m_structural = addFact(*form, tr("Structural announcements:"),
                           tr("Rows inserted, removed or moved, changes of layout: in the last "
                              "refresh, and the most in any"));
    m_values = addFact(*form, tr("Announcements of values:"),
                       tr("Ranges of rows told to show another text, in the last refresh"));
    m_time = addFact(*form, tr("Time, last and average:"),
                     tr("Of the synchronization, with what the view does at once"));
    m_slowest = addFact(*form, tr("Slowest:"), tr("The longest refresh of this tree"));
    m_selection = addFact(*form, tr("Selected rows kept:"),
                          tr("In the last refresh, of those that still exist"));
    m_expansion = addFact(*form, tr("Expanded rows kept:"),
                          tr("In the last refresh, of those that still exist"));
    m_lost = addFact(*form, tr("Places lost so far:"),
                     tr("Rows that still exist and are not selected, expanded or current any "
                        "more, in all refreshes of this tree"));
    layout->addLayout(form);
    m_chart = new TimeChart(box);
    m_chart->setAccessibleName(tr("Times of the last refreshes"));
    layout->addWidget(m_chart, 1);
    return box;
}

void StressWindow::fill(StressShape shape, int rowCount)
{
    m_run.fill(shape, rowCount, s_seed);
    m_size->setCurrentIndex(m_size->findData(rowCount));
    m_shape->setCurrentIndex(m_shape->findData(int(shape)));
    markRows();
    m_chart->clear();
    m_facts = {};
    m_totals = {};
    m_check.remember();
    m_kept = m_check.compare({});
    showFacts();
}

void StressWindow::refill()
{
    fill(StressShape(m_shape->currentData().toInt()), m_size->currentData().toInt());
}

/** Not `expandAll`: it takes rows without children for expanded, and each costs in a refresh. */
void StressWindow::expandGroups(const QModelIndex& parent)
{
    for (int row = 0; row < m_run.model().rowCount(parent); ++row) {
        const QModelIndex index = m_run.model().index(row, 0, parent);
        if (!m_run.model().hasChildren(index))
            continue;
        m_view->expand(index);
        expandGroups(index);
    }
}

/** Something for the eye to follow: a row in the middle current, some near and far selected. */
void StressWindow::markRows()
{
    expandGroups({});
    std::vector<QModelIndex> rows;
    const int wanted = m_run.tree()->rowCount();
    rows.reserve(std::size_t(wanted));
    for (QModelIndex row = m_run.model().index(0, 0); row.isValid(); row = m_view->indexBelow(row))
        rows.push_back(row);
    QItemSelection selection;
    const auto mark = [&](std::size_t row) { selection.select(rows[row], rows[row]); };
    for (std::size_t spread = 0; spread < s_spreadMarks; ++spread)
        mark(rows.size() * spread / s_spreadMarks);
    for (std::size_t near = 1; near <= s_nearMarks; ++near)
        mark((rows.size() + 3 * near) / 2 % rows.size());
    const QModelIndex middle = rows[rows.size() / 2];
    m_view->selectionModel()->setCurrentIndex(middle, QItemSelectionModel::NoUpdate);
    m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_view->scrollTo(middle, QAbstractItemView::PositionAtCenter);
}

void StressWindow::setEdits(const std::vector<StressEdit>& kinds, int editsPerStep)
{
    for (const auto& [kind, box] : m_kinds)
        box->setChecked(std::find(kinds.begin(), kinds.end(), kind) != kinds.end());
    m_editsPerStep->setValue(editsPerStep);
}

std::vector<StressEdit> StressWindow::chosenEdits() const
{
    std::vector<StressEdit> kinds;
    for (const auto& [kind, box] : m_kinds)
        if (box->isChecked())
            kinds.push_back(kind);
    return kinds;
}

void StressWindow::setRunning(bool running)
{
    m_startStop->setChecked(running);
    m_startStop->setText(running ? tr("&Stop") : tr("&Start"));
    if (running && !m_clock.isActive())
        m_clock.start();
    else if (!running)
        m_clock.stop();
}

void StressWindow::setRate(int perSecond)
{
    m_clock.setInterval(1000 / perSecond);
}

void StressWindow::step()
{
    m_check.remember();
    m_facts = m_run.step(chosenEdits(), m_editsPerStep->value());
    m_kept = m_check.compare(m_run.tree()->removed());
    m_chart->add(m_facts.milliseconds);
    noteStep();
    showFacts();
}

void StressWindow::noteStep()
{
    ++m_totals.steps;
    m_totals.mostStructural = std::max(m_totals.mostStructural, m_facts.structural);
    m_totals.lost += m_kept.selection.expected - m_kept.selection.kept;
    m_totals.lost += m_kept.expansion.expected - m_kept.expansion.kept;
    m_totals.lost += m_kept.current ? 0 : 1;
}

void StressWindow::showFacts()
{
    const QLocale here = locale();
    const auto milliseconds = [&here](double time) { return here.toString(time, 'f', 2); };
    m_rows->setText(here.toString(m_run.tree()->rowCount()));
    m_structural->setText(
        tr("%1 (most %2)")
            .arg(here.toString(m_facts.structural), here.toString(m_totals.mostStructural)));
    m_values->setText(here.toString(m_facts.values));
    m_time->setText(tr("%1 ms, %2 ms")
                        .arg(milliseconds(m_facts.milliseconds), milliseconds(m_chart->average())));
    m_slowest->setText(tr("%1 ms").arg(milliseconds(m_chart->slowest())));
    m_selection->setText(counted(m_kept.selection, here));
    m_expansion->setText(counted(m_kept.expansion, here));
    m_lost->setText(here.toString(m_totals.lost));
    m_chart->setAccessibleDescription(tr("%n refreshes, on average %1 ms", nullptr, m_totals.steps)
                                          .arg(milliseconds(m_chart->average())));
}

} // namespace Zorvane::Workbench
