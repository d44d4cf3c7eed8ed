#pragma once

#include "Workbench/Tree/DesignCatalog.h"

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QTreeWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** Everything known about one object, as properties and values that can be copied. */
class DetailsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit DetailsPanel(QWidget* parent = nullptr);

    /** An id that stands for no object empties the panel. */
    void show(const DesignCatalog& catalog, const IDCombiner& id);

private:
    using Rows = std::vector<std::pair<QString, QString>>;

    Rows rowsFor(const DesignCatalog& catalog, const CatalogEntry& entry) const;
    void fill(const Rows& rows);
    void copyCurrent() const;

    QTreeWidget* m_properties;
};

} // namespace Zorvane::Workbench
