#pragma once

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
class QPushButton;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class SimulationRunner;

/** Shows how far a simulation is, with a button to stop it; hidden while none runs. */
class SimulationProgress : public QWidget
{
    Q_OBJECT

public:
    explicit SimulationProgress(SimulationRunner& runner, QWidget* parent = nullptr);

private:
    void show(int done, int total);

    SimulationRunner& m_runner;
    QLabel* m_text;
    QProgressBar* m_bar;
    QPushButton* m_stop;
};

} // namespace Zorvane::Workbench
