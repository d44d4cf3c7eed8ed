#pragma once

#include "FileDialogs/FileDialog.h"
#include "Tests/FileDialogs/DialogFixtures.h"
#include "Tests/Support/ExpectedModals.h"
#include "Tests/Support/TestCase.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>

#include <memory>

namespace Zorvane::Testing {

using CustomItem = FileDialogConfiguration::CustomItem;

inline const QString meshCaption = QStringLiteral("Open mesh");
inline const QString meshFilter = QStringLiteral("Meshes (*.stl *.obj);;Tables (*.csv)");
inline const QString meshScope = QStringLiteral("Import");

inline CustomItem checkBox(int id, const char* label, bool isChecked = false)
{
    CustomItem item;
    item.controlId = id;
    item.content = QString::fromLatin1(label);
    item.initialValue = isChecked;
    return item;
}

inline CustomItem comboBox(int id, const QStringList& texts, int index)
{
    CustomItem item;
    item.controlId = id;
    item.controlType = FileDialogConfiguration::ComboBox;
    item.content = texts;
    item.initialValue = index;
    return item;
}

template <typename Widget>
Widget* part(QFileDialog& dialog, const char* name)
{
    return dialog.findChild<Widget*>(QString::fromLatin1(name));
}

inline QLineEdit* nameEdit(QFileDialog& dialog)
{
    return part<QLineEdit>(dialog, "fileNameEdit");
}

inline QPushButton* openButton(QFileDialog& dialog)
{
    return part<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Open);
}

inline QPushButton* cancelButton(QFileDialog& dialog)
{
    return part<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Cancel);
}

/** By its text; the dialog marks letters of its own in those without "&". */
template <typename Widget>
Widget* custom(QFileDialog& dialog, const char* text)
{
    for (auto* widget : dialog.findChildren<Widget*>()) {
        if (widget->text().remove(QLatin1Char('&')) ==
            QString::fromLatin1(text).remove(QLatin1Char('&')))
            return widget;
    }
    return nullptr;
}

inline QComboBox* customCombo(QFileDialog& dialog, const QString& firstItem)
{
    for (auto* box : dialog.findChildren<QComboBox*>()) {
        if (box->itemText(0) == firstItem)
            return box;
    }
    return nullptr;
}

inline QRect rectIn(QWidget* widget, QWidget& dialog)
{
    return QRect(widget->mapTo(&dialog, QPoint(0, 0)), widget->size());
}

inline void select(QFileDialog& dialog, const QStringList& names)
{
    auto* view = part<QListView>(dialog, "listView");
    view->selectionModel()->clearSelection();
    for (const QString& name : names) {
        const QModelIndexList found =
            view->model()->match(view->model()->index(0, 0, view->rootIndex()), Qt::DisplayRole,
                                 name, 1, Qt::MatchExactly);
        QVERIFY2(!found.isEmpty(), qPrintable(name));
        view->selectionModel()->select(found.first(),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

/** Whether the dialog's list shows the file: folders are read in the background. */
inline bool shows(QFileDialog& dialog, const QString& name)
{
    auto* view = part<QListView>(dialog, "listView");
    return !view->model()
                ->match(view->model()->index(0, 0, view->rootIndex()), Qt::DisplayRole, name, 1,
                        Qt::MatchExactly)
                .isEmpty();
}

/** Opens Qt's dialog under a configuration, over a folder with a few files. */
class ConfiguredDialogTestCase : public TestCase
{
    Q_OBJECT

protected:
    /** Opens the dialog and answers it; the dialog must be closed by the answer. */
    QString open(std::function<void(QFileDialog&)> answer);
    QStringList openSeveral(std::function<void(QFileDialog&)> answer);
    QString path(const QString& name) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<FileDialogConfiguration> m_configuration;
    std::unique_ptr<RecordingHandler> m_handler;
    ScriptedPathProvider m_provider;
    // Also where the system has a dialog.
    const NativeFileDialogReplacement m_noDriver{[] { return nullptr; }};
    QPointer<QWidget> m_owner;

protected Q_SLOTS:
    void init();
};

inline void ConfiguredDialogTestCase::init()
{
    QSettings().clear();
    m_dir = std::make_unique<QTemporaryDir>();
    for (const char* name : {"a.stl", "b.stl", "c.obj", "d.csv", "plain"})
        QVERIFY(writeFile(path(QString::fromLatin1(name))));
    m_handler = std::make_unique<RecordingHandler>();
    m_configuration = std::make_unique<FileDialogConfiguration>(QStringLiteral("Key"));
    m_configuration->setEventHandler(m_handler.get());
    m_provider = ScriptedPathProvider();
    m_provider.path = m_dir->path();
    m_owner = nullptr;
}

inline QString ConfiguredDialogTestCase::path(const QString& name) const
{
    return QDir::toNativeSeparators(m_dir->filePath(name));
}

inline QString ConfiguredDialogTestCase::open(std::function<void(QFileDialog&)> answer)
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, std::move(answer));
    return FileDialog::getOpenFileName(meshCaption, meshFilter, &m_provider, meshScope,
                                       m_configuration.get(), m_owner);
}

inline QStringList ConfiguredDialogTestCase::openSeveral(std::function<void(QFileDialog&)> answer)
{
    ExpectedModals modals;
    modals.expectDialog<QFileDialog>(meshCaption, std::move(answer));
    return FileDialog::getOpenFileNames(meshCaption, meshFilter, &m_provider, meshScope,
                                        m_configuration.get(), m_owner);
}

} // namespace Zorvane::Testing
