#include "Workbench/Window/ReadingProgress.h"

#include "Workbench/Meshes/MeshLoader.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>

namespace Zorvane::Workbench {

ReadingProgress::ReadingProgress(const MeshLoader& loader, QWidget* parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_cancel(new QPushButton(tr("Cancel"), this))
{
    m_bar->setAccessibleName(tr("Progress of reading meshes"));
    m_bar->setTextVisible(false);
    m_bar->setFixedSize(180, 12);
    m_cancel->setAccessibleName(tr("Cancel reading meshes"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 4, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addWidget(m_cancel);
    connect(m_cancel, &QPushButton::clicked, this, &ReadingProgress::cancelled);
    connect(&loader, &MeshLoader::progress, this, &ReadingProgress::show);
    connect(&loader, &MeshLoader::finished, this, &QWidget::hide);
    hide();
}

void ReadingProgress::show(int done, int total)
{
    m_text->setText(tr("Reading meshes: %1 of %2").arg(done).arg(total));
    m_bar->setRange(0, total);
    m_bar->setValue(done);
    setVisible(done < total);
}

} // namespace Zorvane::Workbench
