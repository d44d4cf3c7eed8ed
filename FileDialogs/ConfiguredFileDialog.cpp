#include "FileDialogs/ConfiguredFileDialog.h"

#include "FileDialogs/CustomControls.h"
#include "FileDialogs/DialogPlacement.h"
#include "FileDialogs/FileDialogCallbackInterface.h"
#include "FileDialogs/FileDialogConfiguration.h"
#include "FileDialogs/FileDialogEventHandler.h"
#include "FileDialogs/SelectedFiles.h"
#include "FileDialogs/SideBar.h"

#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QItemSelectionModel>
#include <QtCore/QPointer>
#include <QtGui/QWindow>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileSystemModel>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>

namespace Zorvane {

namespace {

/** Milliseconds without a further step, after which a move or resize counts as finished. */
constexpr int s_movementEndDelay = 250;

class Callbacks : public FileDialogCallbackInterface
{
public:
    explicit Callbacks(ConfiguredFileDialog& dialog)
        : m_dialog(&dialog)
    {}

    void setControlState(int controlId, int state) const override
    {
        m_dialog->setControlState(controlId, state);
    }
    void placeDialog(FileDialogConfiguration* configuration) const override
    {
        m_dialog->placeLater(configuration);
    }
    QRect getDialogGeometry() const override { return m_dialog->frameGeometry(); }

private:
    ConfiguredFileDialog* m_dialog;
};

/** The folder, or the nearest above it that exists: a remembered one may have been deleted. */
QString existingFolder(const QString& folder)
{
    QDir dir(QDir::fromNativeSeparators(folder));
    while (!dir.exists() && !dir.isRoot()) {
        const QString above = QFileInfo(dir.path()).path();
        if (above == dir.path())
            break;
        dir.setPath(above);
    }
    return dir.absolutePath();
}

/** "*.*" is all files where it is written, but to Qt those with a dot in their names. */
QString typeForQt(const QString& type)
{
    const QString allFiles = QStringLiteral("(*.*)");
    return type.endsWith(allFiles) ? type.chopped(allFiles.size()) + QStringLiteral("(*)") : type;
}

} // namespace

ConfiguredFileDialog::ConfiguredFileDialog(const NativeFileDialogRequest& request,
                                           QFileDialog::Options options, std::exception_ptr& thrown)
    : QFileDialog(request.owner, request.caption)
    , m_configuration(request.configuration)
    , m_handler(request.configuration->getEventHandler())
    , m_thrown(thrown)
    , m_types(request.filters.names)
{
    setOptions(options | QFileDialog::DontUseNativeDialog);
    setWindowModality(request.owner ? Qt::WindowModal : Qt::ApplicationModal);
    setAcceptMode(QFileDialog::AcceptOpen);
    setFileMode(request.multiSelection ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    m_parts = findQtDialogParts(*this);
    setUpFiles(request);
    addPlaces(request.places);
    if (m_handler && m_parts) {
        addControls();
        connectEvents();
    }
    m_movementEnd.setSingleShot(true);
    m_movementEnd.setInterval(s_movementEndDelay);
    connect(&m_movementEnd, &QTimer::timeout, this, &ConfiguredFileDialog::storeGeometry);
    if (request.owner)
        request.owner->window()->installEventFilter(this);
    giveOuterGeometry(dialogPlacement(*m_configuration));
}

ConfiguredFileDialog::~ConfiguredFileDialog()
{
    closeDown();
}

void ConfiguredFileDialog::setUpFiles(const NativeFileDialogRequest& request)
{
    QStringList shownTypes;
    for (const QString& type : qAsConst(m_types))
        shownTypes.append(typeForQt(type));
    setNameFilters(shownTypes);
    setDirectory(existingFolder(request.folder));
    if (!request.fileName.isEmpty())
        selectFile(request.fileName);
}

void ConfiguredFileDialog::addPlaces(const std::vector<QString>& places)
{
    QList<QUrl> urls = sidebarUrls();
    for (const QString& place : places) {
        const QUrl url = QUrl::fromLocalFile(QDir::fromNativeSeparators(place));
        if (place.isEmpty() || !QFileInfo(place).isDir() || urls.contains(url))
            continue;
        urls.append(url);
        m_addedPlaces.append(url);
    }
    setSidebarUrls(urls);
}

void ConfiguredFileDialog::addControls()
{
    QGridLayout& rows = *m_parts->rows;
    QDialogButtonBox* const buttons = m_parts->buttons;
    int row = 0;
    int column = 0;
    int rowSpan = 0;
    int columnSpan = 0;
    rows.getItemPosition(rows.indexOf(buttons), &row, &column, &rowSpan, &columnSpan);
    rows.removeWidget(buttons);

    auto* besideButtons = new QGridLayout;
    m_controls = new CustomControls(this);
    m_controls->add(*m_configuration, rows, *besideButtons);
    auto* corner = new QHBoxLayout;
    corner->addLayout(besideButtons);
    corner->addWidget(buttons);
    rows.addLayout(corner, row, column, rowSpan, columnSpan);

    setTabOrder(m_parts->name, m_parts->types);
    m_controls->followInTabOrder(m_parts->types);
    // The box, which comes right after the name, would hand the focus on to its first button.
    buttons->setFocusProxy(nullptr);
}

void ConfiguredFileDialog::connectEvents()
{
    connect(m_controls, &CustomControls::toggled, this, [this](bool checked, int controlId) {
        tell([&] { m_handler->onCheckBoxToggled(checked, controlId, Callbacks(*this)); });
    });
    connect(m_controls, &CustomControls::itemSelected, this, [this](int controlId, int itemIndex) {
        tell([&] { m_handler->onItemSelected(controlId, itemIndex); });
    });
    connect(this, &QFileDialog::filterSelected, this, &ConfiguredFileDialog::tellType);
    connect(m_parts->list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ConfiguredFileDialog::tellSelection);
}

void ConfiguredFileDialog::selectType(const QString& type)
{
    const int index = m_types.indexOf(type);
    if (index >= 0)
        selectNameFilter(nameFilters().at(index));
}

QString ConfiguredFileDialog::selectedType() const
{
    // By its place, since two types may read alike.
    return m_types.value(m_parts ? m_parts->types->currentIndex()
                                 : nameFilters().indexOf(selectedNameFilter()));
}

void ConfiguredFileDialog::setControlState(int controlId, int state)
{
    if (m_controls)
        m_controls->setState(controlId, state);
}

void ConfiguredFileDialog::placeLater(FileDialogConfiguration* configuration)
{
    if (!configuration)
        return;
    QTimer::singleShot(s_dialogPlacementDelay, this, [this, configuration] {
        if (m_isClosedDown)
            return;
        if (!windowHandle() || !windowHandle()->isExposed()) {
            placeLater(configuration);
            return;
        }
        if (isMaximized())
            showNormal();
        giveOuterGeometry(dialogPlacement(*configuration));
        m_isPlaced = true;
    });
}

void ConfiguredFileDialog::giveOuterGeometry(const QRect& rect)
{
    const QSize frame = frameGeometry().size() - size();
    resize(rect.size() - frame);
    move(rect.topLeft());
}

void ConfiguredFileDialog::storeGeometry()
{
    m_configuration->storeFileDialogGeometry(frameGeometry());
}

void ConfiguredFileDialog::closeDown()
{
    if (m_isClosedDown)
        return;
    m_isClosedDown = true;
    m_movementEnd.stop();
    if (m_wasShown)
        storeGeometry();
    // Qt keeps the places of the side bar for every later dialog.
    QList<QUrl> urls = sidebarUrls();
    for (const QUrl& place : qAsConst(m_addedPlaces))
        urls.removeAll(place);
    setSidebarUrls(urls);
}

void ConfiguredFileDialog::done(int result)
{
    closeDown();
    QFileDialog::done(result);
}

bool ConfiguredFileDialog::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOwnersWindow = parentWidget() && watched == parentWidget()->window();
    if (isOwnersWindow && event->type() == QEvent::Hide && !event->spontaneous())
        reject();
    return QFileDialog::eventFilter(watched, event);
}

void ConfiguredFileDialog::moveEvent(QMoveEvent* event)
{
    QFileDialog::moveEvent(event);
    if (m_isPlaced && !m_isClosedDown)
        m_movementEnd.start();
}

void ConfiguredFileDialog::resizeEvent(QResizeEvent* event)
{
    QFileDialog::resizeEvent(event);
    if (m_isPlaced && !m_isClosedDown)
        m_movementEnd.start();
}

void ConfiguredFileDialog::showEvent(QShowEvent* event)
{
    QFileDialog::showEvent(event);
    if (m_wasShown)
        return;
    m_wasShown = true;
    widenSideBar(*this);
    // The frame was unknown when the window got its first geometry.
    placeLater(m_configuration);
    if (!m_handler || !m_parts)
        return;
    tellType();
    QTimer::singleShot(0, this, [this] {
        if (m_parts->list->selectionModel()->hasSelection())
            tellSelection();
    });
}

template <typename Event>
void ConfiguredFileDialog::tell(Event event)
{
    if (m_thrown)
        return;
    try {
        event();
    } catch (...) {
        m_thrown = std::current_exception();
        // Later, since an event may come before the dialog waits for its end.
        QTimer::singleShot(0, this, &QDialog::reject);
    }
}

void ConfiguredFileDialog::tellType()
{
    tell([this] { m_handler->onTypeChanged(Callbacks(*this)); });
}

void ConfiguredFileDialog::tellSelection()
{
    QStringList paths;
    // A folder that was entered stays selected while its name stands in the box.
    const QModelIndex folder = m_parts->list->rootIndex();
    const QModelIndexList rows = m_parts->list->selectionModel()->selectedRows();
    for (const QModelIndex& row : rows) {
        const QString path = row.data(QFileSystemModel::FilePathRole).toString();
        if (row.parent() == folder)
            paths.append(QDir::toNativeSeparators(path));
    }
    const QStringList files = inOrderOfFileNameBox(paths, m_parts->name->text());
    tell([&] { m_handler->onSelectionChanged(files, Callbacks(*this)); });
}

NativeFileDialogResult openConfiguredFileDialog(const NativeFileDialogRequest& request,
                                                QFileDialog::Options options,
                                                QString* selectedFilter)
{
    // Its owner may be destroyed while the dialog is open, and takes it along.
    std::exception_ptr thrown;
    const QPointer<ConfiguredFileDialog> dialog =
        new ConfiguredFileDialog(request, options, thrown);
    if (selectedFilter)
        dialog->selectType(*selectedFilter);
    NativeFileDialogResult result{NativeFileDialogResult::s_cancelled, {}};
    if (dialog->exec() == QDialog::Accepted && dialog) {
        const QStringList files = dialog->selectedFiles();
        for (const QString& file : files)
            result.paths.append(QDir::toNativeSeparators(file));
        result.code = NativeFileDialogResult::s_ok;
        if (selectedFilter)
            *selectedFilter = dialog->selectedType();
    }
    delete dialog;
    if (thrown)
        std::rethrow_exception(thrown);
    return result;
}

} // namespace Zorvane
