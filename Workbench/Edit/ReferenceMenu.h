#pragma once

#include "Host/Identifiers/IDCombiner.h"

#include <QtCore/QObject>
#include <QtCore/QPoint>

QT_BEGIN_NAMESPACE
class QMenu;
class QWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

class DesignCatalog;

/**
 * Leads from an object to those that refer to it and those it refers to: at once when there is
 * one, by a menu when there are more. The catalog must outlive it.
 */
class ReferenceMenu : public QObject
{
    Q_OBJECT

public:
    explicit ReferenceMenu(const DesignCatalog& catalog, QObject* parent = nullptr);

    bool leadsAnywhere(const IDCombiner& from) const;
    /** The menu opens, with its first entry chosen, at a place on the screen. */
    void follow(const IDCombiner& from, QWidget* window, const QPoint& place);
    /** An entry for each object to go to, with its name, picture and colour. */
    void fill(QMenu& menu, const IDCombiner& from);

Q_SIGNALS:
    void chosen(const Zorvane::IDCombiner& to);

private:
    const DesignCatalog& m_catalog;
};

} // namespace Zorvane::Workbench
