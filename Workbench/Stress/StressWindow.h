#pragma once

#include "Workbench/Stress/PlaceCheck.h"
#include "Workbench/Stress/StressRun.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <map>

QT_BEGIN_NAMESPACE
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QSpinBox;
class QTreeView;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class TimeChart;

/**
 * A window that edits a tree at random, many times a second, and tells what each refresh cost and
 * whether the view kept its place. Its user may select, expand and scroll meanwhile.
 *
 * Not supported: editing from a thread, sorting.
 */
class StressWindow : public QWidget
{
    Q_OBJECT

public:
    explicit StressWindow(QWidget* parent = nullptr);
    ~StressWindow() override;

    /** Another tree: some of its rows selected, one of them current, all expanded. */
    void fill(StressShape shape, int rowCount);
    void setEdits(const std::vector<StressEdit>& kinds, int editsPerStep);
    /** One refresh, as the clock does it. */
    void step();
    /** By the clock, from now on or no more. */
    void setRunning(bool running);
    bool isRunning() const { return m_clock.isActive(); }

    // What is shown, for those who drive the window without a person in front of it.
    struct Totals
    {
        int steps = 0;
        int mostStructural = 0;
        /** Rows that should have kept selection, expansion or being current, and did not. */
        int lost = 0;
    };
    const Totals& totals() const { return m_totals; }
    const StressFacts& lastFacts() const { return m_facts; }
    const PlaceKept& lastKept() const { return m_kept; }
    const StressRun& run() const { return m_run; }
    QTreeView& view() { return *m_view; }

private:
    QWidget* createSide();
    QWidget* createTreeBox();
    QWidget* createEditBox();
    QWidget* createFactBox();
    void addButtons(QFormLayout& form);
    QLabel* addFact(QFormLayout& form, const QString& title, const QString& explanation);
    void refill();
    void expandGroups(const QModelIndex& parent);
    void markRows();
    void setRate(int perSecond);
    std::vector<StressEdit> chosenEdits() const;
    void noteStep();
    void showFacts();

    StressRun m_run;
    QTreeView* const m_view;
    PlaceCheck m_check;
    QTimer m_clock;
    QComboBox* m_size = nullptr;
    QComboBox* m_shape = nullptr;
    std::map<StressEdit, QCheckBox*> m_kinds;
    QSpinBox* m_editsPerStep = nullptr;
    QSpinBox* m_rate = nullptr;
    QPushButton* m_startStop = nullptr;
    TimeChart* m_chart = nullptr;
    QLabel* m_rows = nullptr;
    QLabel* m_structural = nullptr;
    QLabel* m_values = nullptr;
    QLabel* m_time = nullptr;
    QLabel* m_slowest = nullptr;
    QLabel* m_selection = nullptr;
    QLabel* m_expansion = nullptr;
    QLabel* m_lost = nullptr;
    StressFacts m_facts;
    PlaceKept m_kept;
    Totals m_totals;
};

} // namespace Zorvane::Workbench
