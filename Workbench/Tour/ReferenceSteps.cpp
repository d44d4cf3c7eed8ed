#include "Workbench/Tour/ReferenceSteps.h"

#include "Utilities/ReferenceIndicatorDelegate.h"
#include "Workbench/Commands/WindowCommands.h"
#include "Workbench/Edit/EngineeringSpinBox.h"
#include "Workbench/Edit/QuantityPanel.h"
#include "Workbench/MeshView/MeshView.h"
#include "Workbench/Window/MainWindow.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

namespace Zorvane::Workbench {

namespace {

QString usedBy(const QModelIndex& row, int role)
{
    return row.siblingAtColumn(TreeColumn::UsedBy).data(role).toString();
}

} // namespace

void ReferenceSteps::perform()
{
    openDoor();
    showReferences();
    showColours();
    measure();
}

void ReferenceSteps::openDoor()
{
    m_report.beginStep(text("A door panel"),
                       text("A second sample: several operations with their tools."));
    m_report.expect(copySample(text("door-panel")), text("the sample beside the program"));
    reopen({workFolder(text("door-panel"))});
    m_report.expect(m_driver.waitUntilRead(), text("all meshes are read"));
    const QStringList names = m_driver.visibleNames();
    for (const char* name : {"Door panel", "OP20 Draw", "OP30 Trim", "OP40 Flange"})
        m_report.expect(names.contains(text(name)), text("the row ") + text(name));
    m_driver.select(ObjectKind::Part, text("Door panel"));
    m_report.expect(m_driver.waitFor([this] { return m_window.meshView().hasMesh(); }),
                    text("the panel's mesh"));
    picture(text("door-panel"));
}

void ReferenceSteps::showReferences()
{
    m_report.beginStep(
        QStringLiteral("Who uses what"),
        QStringLiteral("The column Used by tells how many parts refer to a material or file, in "
                       "their colours. Go to Reference leads there: a menu when there are more."));
    const IDCombiner steel = m_driver.find(ObjectKind::Material, QStringLiteral("DC06, 0.8 mm"));
    m_driver.select(ObjectKind::Material, QStringLiteral("DC06, 0.8 mm"));
    const QModelIndex row = m_window.tree().indexOf(steel);
    m_report.expect(usedBy(row, Qt::AccessibleTextRole) ==
                        ReferenceIndicatorDelegate::textForReferences(4),
                    QStringLiteral("read aloud: ") + usedBy(row, Qt::AccessibleTextRole));
    m_report.expect(usedBy(row, Qt::ToolTipRole).contains(QStringLiteral("Trimmed panel")),
                    QStringLiteral("the names as tool tip"));
    m_window.commands()[WorkbenchActions::GoToReference]->trigger();
    m_driver.settle();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    m_report.expect(menu != nullptr && menu->actions().size() == 5,
                    QStringLiteral("a menu of five to go to"));
    if (menu == nullptr)
        return;
    QImage whole = m_driver.picture();
    QPainter(&whole).drawImage(m_window.mapFromGlobal(menu->pos()), menu->grab().toImage());
    m_report.addPicture(QStringLiteral("who-uses-a-material"), whole);
    m_driver.pressKey(menu, Qt::Key_Down);
    m_driver.pressKey(menu, Qt::Key_Return);
    m_driver.settle();
    m_report.expect(m_window.tree().currentId() ==
                        m_driver.find(ObjectKind::Part, QStringLiteral("Drawn panel")),
                    QStringLiteral("the part selected by keyboard"));
}

void ReferenceSteps::showColours()
{
    m_report.beginStep(
        QStringLiteral("Colours of parts"),
        QStringLiteral(
            "Each part has one colour in the tree, in the mesh view and in its legend."));
    m_driver.select(ObjectKind::Part, QStringLiteral("Trimmed panel"));
    m_report.expect(m_driver.waitFor([this] { return m_window.meshView().hasMesh(); }),
                    QStringLiteral("the panel's mesh"));
    const CatalogEntry* entry = m_window.tree().catalog().find(m_window.tree().currentId());
    m_report.expect(m_window.meshView().colour() == entry->colour,
                    QStringLiteral("the mesh in the colour of the row"));
    const auto& legend = m_window.meshView().legend().entries();
    m_report.expect(legend.size() == 13 && legend[2].isShown && legend[2].colour == entry->colour,
                    QStringLiteral("a legend of 13, with the panel marked"));
    picture(QStringLiteral("colours-of-parts"));
}

void ReferenceSteps::measure()
{
    m_report.beginStep(QStringLiteral("Thickness and force"),
                       QStringLiteral("Values in engineering notation, stepped by what suits them; "
                                      "each step can be undone."));
    m_driver.select(ObjectKind::Part, QStringLiteral("Drawn panel"));
    EngineeringSpinBox& force = m_window.quantityPanel().spinBox(Quantity::Force);
    const QString before = force.text();
    force.stepBy(1);
    m_driver.settle();
    m_report.expect(before == QStringLiteral("3.4e6 N") &&
                        force.text() == QStringLiteral("3.41e6 N"),
                    QStringLiteral("%1 stepped to %2").arg(before, force.text()));
    EngineeringSpinBox& thickness = m_window.quantityPanel().spinBox(Quantity::Thickness);
    thickness.stepBy(-5);
    m_driver.settle();
    m_report.expect(thickness.text() == QStringLiteral("750e-3 mm"), thickness.text());
    m_report.expect(m_window.isWindowModified(), QStringLiteral("the design is modified"));
    picture(QStringLiteral("thickness-and-force"));
    m_window.session().revert(m_window.session().designs().front().id);
    m_driver.settle();
    m_report.expect(force.text() == before, QStringLiteral("the values of the file again"));
}

} // namespace Zorvane::Workbench
