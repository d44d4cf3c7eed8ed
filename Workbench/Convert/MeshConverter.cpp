#include "Workbench/Convert/MeshConverter.h"

#include "Dialogs/FileConverterDialog.h"

namespace Zorvane::Workbench {

MeshConverter::MeshConverter(QWidget* parent)
    : m_parent(parent)
{}

MeshConverter::~MeshConverter() = default;

void MeshConverter::run()
{
    if (!m_dialog)
        m_dialog = std::make_unique<FileConverterDialog>(
            &m_conversion, tr("Convert Meshes"),
            tr("Writes a mesh as an STL file: binary STL as ASCII and the other way round, OBJ and "
               "PLY as binary STL. Files that exist are not replaced."),
            m_parent);
    m_dialog->run();
}

} // namespace Zorvane::Workbench
