#pragma once

#include "Workbench/Convert/MeshConversion.h"

#include <QtCore/QCoreApplication>

#include <memory>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Zorvane {
class FileConverterDialog;
}

namespace Zorvane::Workbench {

/** The command Convert: its window, made when it is first wanted, with what was chosen last. */
class MeshConverter
{
    Q_DECLARE_TR_FUNCTIONS(Zorvane::Workbench::MeshConverter)

public:
    /** The window's parent, which must outlive this object. */
    explicit MeshConverter(QWidget* parent);
    ~MeshConverter();

    MeshConverter(const MeshConverter&) = delete;
    MeshConverter& operator=(const MeshConverter&) = delete;

    void run();

private:
    QWidget* m_parent;
    MeshConversion m_conversion;
    std::unique_ptr<FileConverterDialog> m_dialog;
};

} // namespace Zorvane::Workbench
