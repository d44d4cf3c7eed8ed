#pragma once

#include "Host/Identifiers/IDCombiner.h"

#include <QtGui/QColor>
#include <QtWidgets/QListWidget>

#include <vector>

namespace Zorvane::Workbench {

/** What a legend tells of one object. */
struct LegendEntry
{
    IDCombiner id;
    QString name;
    QColor colour;
    bool isShown = false;

    bool operator==(const LegendEntry& other) const
    {
        return id == other.id && name == other.name && colour == other.colour &&
               isShown == other.isShown;
    }
};

/**
 * Lies over a mesh view and tells which object has which colour, with those shown in bold. An entry
 * is chosen by a click, or by the arrow keys and Return. As large as its entries need, up to
 * the size it is given; it scrolls then.
 */
class MeshLegend : public QListWidget
{
    Q_OBJECT

public:
    explicit MeshLegend(QWidget* parent = nullptr);

    void setEntries(const std::vector<LegendEntry>& entries);
    const std::vector<LegendEntry>& entries() const { return m_entries; }
    /** Places it at the upper corner of the trailing side; hides it while it has no entries. */
    void fitInto(const QRect& area);

    QSize sizeHint() const override;

Q_SIGNALS:
    void chosen(const Zorvane::IDCombiner& id);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void choose(const QListWidgetItem* item);

    std::vector<LegendEntry> m_entries;
};

} // namespace Zorvane::Workbench
