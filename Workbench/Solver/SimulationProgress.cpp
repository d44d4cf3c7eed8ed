#include "Workbench/Solver/SimulationProgress.h"

#include "Workbench/Solver/SimulationRunner.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

namespace Zorvane::Workbench {

SimulationProgress::SimulationProgress(SimulationRunner& runner, QWidget* parent)
    : QWidget(parent)
    , m_runner(runner)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_stop(new QPushButton(tr("Stop"), this))
{
    m_bar->setAccessibleName(tr("Progress of the simulation"));
    m_bar->setTextVisible(false);
    m_bar->setFixedSize(180, 12);
    m_stop->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_stop->setAccessibleName(tr("Stop the simulation"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 4, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addWidget(m_stop);
    connect(m_stop, &QPushButton::clicked, &runner, &SimulationRunner::stop);
    connect(&runner, &SimulationRunner::progressed, this, &SimulationProgress::show);
    connect(&runner, &SimulationRunner::finished, this, &QWidget::hide);
    connect(&runner, &SimulationRunner::failed, this, &QWidget::hide);
    connect(&runner, &SimulationRunner::stopped, this, &QWidget::hide);
    hide();
}

void SimulationProgress::show(int done, int total)
{
    m_text->setText(tr("Simulating %1: stroke %2 of %3")
                        .arg(QFileInfo(m_runner.designFile()).fileName())
                        .arg(done)
                        .arg(total));
    m_bar->setRange(0, total);
    m_bar->setValue(done);
    setVisible(true);
}

} // namespace Zorvane::Workbench
