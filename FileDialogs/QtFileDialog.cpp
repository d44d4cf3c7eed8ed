#include "FileDialogs/QtFileDialog.h"

#include "FileDialogs/CustomControls.h"
#include "FileDialogs/DialogTexts.h"
#include "FileDialogs/FileDialogCallbackInterface.h"
#include "FileDialogs/FileDialogEventHandler.h"
#include "FileDialogs/ScreenGeometry.h"

#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QItemSelectionModel>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileSystemModel>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeView>

#include <algorithm>

namespace Zorvane {

namespace {

/** Milliseconds until a dialog that isn't shown yet is looked at again. */
constexpr int placementDelay = 5;
/** Milliseconds without a further step, after which a move or resize counts as finished. */
constexpr int movementEndDelay = 250;
/** Milliseconds in which news of the files listed are collected. */
constexpr int listingDelay = 50;

class Callbacks : public FileDialogCallbackInterface
{
public:
    explicit Callbacks(QtFileDialog& dialog)
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
    QtFileDialog* m_dialog;
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

QStringList typesOf(const FileDialogRequest& request)
{
    // Qt's own text, so that no ending is made of a type that the caller has not given.
    return request.filter.isEmpty() ? QStringList(QFileDialog::tr("All Files (*)"))
                                    : filterTypes(request.filter);
}

bool hasDoubleQuotes(const QString& name)
{
    return name.contains(QLatin1Char('"'));
}

} // namespace

FileDialogResult QtFileDialogDriver::run(const FileDialogRequest& request)
{
    // Its owner may be destroyed while the dialog is open, and takes it along.
    std::exception_ptr thrown;
    const QPointer<QtFileDialog> dialog = new QtFileDialog(request, thrown);
    FileDialogResult result;
    if (dialog->exec() == QDialog::Accepted && dialog)
        result = dialog->accepted();
    delete dialog;
    if (thrown)
        std::rethrow_exception(thrown);
    return result;
}

QtFileDialog::QtFileDialog(const FileDialogRequest& request, std::exception_ptr& thrown)
    : QFileDialog(request.configuration ? request.owner.data() : nullptr, request.caption)
    , m_purpose(request.purpose)
    , m_owner(request.owner)
    , m_configuration(request.configuration ? request.configuration : &m_standard)
    , m_handler(m_configuration->getEventHandler())
    , m_thrown(thrown)
    , m_types(typesOf(request))
{
    setUpPurpose(request);
    m_parts = findParts();
    if (m_parts)
        narrowFirstRow();
    setUpFiles(request);
    addPlaces(request.places);
    if (m_handler && m_parts) {
        addControls();
        connectEvents();
    }
    m_movementEnd.setSingleShot(true);
    m_movementEnd.setInterval(movementEndDelay);
    connect(&m_movementEnd, &QTimer::timeout, this, &QtFileDialog::storeGeometry);
    if (m_owner)
        followOwner(*m_owner);
    placeAsLeft();
}

QtFileDialog::~QtFileDialog()
{
    closeDown();
}

std::optional<QtFileDialog::Parts> QtFileDialog::findParts() const
{
    Parts parts;
    parts.rows = qobject_cast<QGridLayout*>(layout());
    parts.splitter = findChild<QSplitter*>(QStringLiteral("splitter"));
    parts.sideBar = findChild<QListView*>(QStringLiteral("sidebar"));
    parts.list = findChild<QListView*>(QStringLiteral("listView"));
    parts.details = findChild<QTreeView*>(QStringLiteral("treeView"));
    parts.name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    parts.types = findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    parts.buttons = findChild<QDialogButtonBox*>(QStringLiteral("buttonBox"));
    if (parts.rows && parts.splitter && parts.sideBar && parts.list && parts.details &&
        parts.name && parts.types && parts.buttons)
        return parts;
    qWarning("This version of Qt's file dialog is built otherwise: no controls, no events");
    return std::nullopt;
}

/** Its label is part of the row, not of a column that is as wide as the longest label. */
void QtFileDialog::narrowFirstRow()
{
    auto* const label = findChild<QLabel*>(QStringLiteral("lookInLabel"));
    QLayoutItem* const folder = m_parts->rows->itemAtPosition(0, 1);
    auto* const row = folder ? qobject_cast<QBoxLayout*>(folder->layout()) : nullptr;
    if (!label || !row)
        return;
    m_parts->rows->removeWidget(label);
    m_parts->rows->removeItem(row);
    row->insertWidget(0, label);
    m_parts->rows->addLayout(row, 0, 0, 1, m_parts->rows->columnCount());
}

void QtFileDialog::setUpPurpose(const FileDialogRequest& request)
{
    // First of all, as it decides whether the rest is about Qt's dialog; some of the others are
    // changed by the file mode.
    setOption(QFileDialog::DontUseNativeDialog);
    const bool isSave = m_purpose == FileDialogPurpose::SaveFile;
    setAcceptMode(isSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    switch (m_purpose) {
    case FileDialogPurpose::OpenFile:
        setFileMode(QFileDialog::ExistingFile);
        break;
    case FileDialogPurpose::OpenFiles:
        setFileMode(QFileDialog::ExistingFiles);
        break;
    case FileDialogPurpose::SaveFile:
        setFileMode(QFileDialog::AnyFile);
        break;
    case FileDialogPurpose::Folder:
        setFileMode(QFileDialog::Directory);
        break;
    }
    setOptions(request.options | QFileDialog::DontUseNativeDialog);
    setWindowModality(parentWidget() ? Qt::WindowModal : Qt::ApplicationModal);
}

void QtFileDialog::setUpFiles(const FileDialogRequest& request)
{
    if (m_purpose != FileDialogPurpose::Folder) {
        QStringList shownTypes;
        for (const QString& type : qAsConst(m_types))
            shownTypes.append(typeForQt(type));
        setNameFilters(shownTypes);
        const int selected = m_types.indexOf(request.selectedFilter);
        if (selected >= 0)
            selectNameFilter(nameFilters().at(selected));
    }
    if (m_parts)
        connect(m_parts->name, &QLineEdit::textChanged, this, &QtFileDialog::followName);
    if (request.start.isEmpty())
        return;
    const DialogStart start = dialogStart(request.start);
    setDirectory(existingFolder(start.folder));
    if (!start.fileName.isEmpty() && m_purpose != FileDialogPurpose::Folder)
        selectFile(start.fileName);
}

void QtFileDialog::addPlaces(const std::vector<QString>& places)
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

void QtFileDialog::addControls()
{
    m_controls = new CustomControls(this);
    m_controls->add(*m_configuration, *m_parts->rows, *m_parts->buttons);
    setTabOrder(m_parts->name, m_parts->types);
    m_controls->followInTabOrder(m_parts->types);
    // The box, which comes right after the name, would hand the focus on to its first button.
    m_parts->buttons->setFocusProxy(nullptr);
}

void QtFileDialog::connectEvents()
{
    connect(m_controls, &CustomControls::toggled, this, [this](bool checked, int controlId) {
        notify([&] { m_handler->onCheckBoxToggled(checked, controlId, Callbacks(*this)); });
    });
    connect(m_controls, &CustomControls::itemSelected, this, [this](int controlId, int itemIndex) {
        notify([&] { m_handler->onItemSelected(controlId, itemIndex); });
    });
    connect(this, &QFileDialog::filterSelected, this, &QtFileDialog::notifyType);
    connect(m_parts->list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &QtFileDialog::notifySelection);
}

void QtFileDialog::followOwner(QWidget& owner)
{
    owner.window()->installEventFilter(this);
    // A parent takes its dialog along by itself.
    if (!parentWidget())
        connect(&owner, &QObject::destroyed, this, &QDialog::reject);
}

void QtFileDialog::stayInFrontOfOwner()
{
    if (!parentWidget() && m_owner)
        windowHandle()->setTransientParent(m_owner->window()->windowHandle());
}

void QtFileDialog::placeAsLeft()
{
    QRect stored;
    if (m_configuration != &m_standard ||
        (m_standard.getFileDialogGeometry(stored) && stored.isValid())) {
        place(wantedPlacement(*m_configuration));
        return;
    }
    const QScreen* const screen = m_owner ? m_owner->screen() : QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    QRect usual(QPoint(0, 0), m_standard.getDefaultDialogSize().boundedTo(area.size()));
    usual.moveCenter(m_owner ? m_owner->window()->frameGeometry().center() : area.center());
    place(fittedOntoDesktop(usual, area));
}

FileDialogResult QtFileDialog::accepted() const
{
    FileDialogResult result = FileDialogResult::accepted(
        m_quotedFile.isEmpty() ? selectedFiles() : QStringList(m_quotedFile));
    // As from the system's dialog, in whose place a configured one stands.
    if (m_configuration != &m_standard) {
        for (QString& path : result.paths)
            path = QDir::toNativeSeparators(path);
    }
    // By its place, since two types may read alike.
    result.selectedFilter = m_types.value(m_parts ? m_parts->types->currentIndex()
                                                  : nameFilters().indexOf(selectedNameFilter()));
    return result;
}

/**
 * What is selected in the list counts more than the name in the box. Qt takes a name with double
 * quotes for the names between them, also where a file of that name exists, and leaves the
 * selection as it is where the box is changed without having the focus, as by assistive tools.
 */
void QtFileDialog::followName(const QString& text)
{
    QItemSelectionModel& selection = *m_parts->list->selectionModel();
    const auto* const files = qobject_cast<QFileSystemModel*>(m_parts->list->model());
    if (!files)
        return;
    if (hasDoubleQuotes(text) && directory().exists(text)) {
        selection.select(files->index(directory().absoluteFilePath(text)),
                         QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return;
    }
    if (m_parts->name->hasFocus())
        return;
    const QStringList names = namesInFileNameBox(text) << text;
    const QModelIndexList rows = selection.selectedRows();
    for (const QModelIndex& row : rows) {
        // Qt leaves selected folders out of the box.
        if (!files->isDir(row) && !names.contains(row.data().toString()))
            selection.select(row, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    }
}

void QtFileDialog::accept()
{
    const QString name = m_parts ? m_parts->name->text() : QString();
    const bool isNewFile = m_purpose == FileDialogPurpose::SaveFile && !directory().exists(name);
    const bool isInQuotes = name.trimmed().startsWith(QLatin1Char('"'));
    if (!isNewFile || isInQuotes || !hasDoubleQuotes(name)) {
        QFileDialog::accept();
        return;
    }
    m_quotedFile = directory().absoluteFilePath(name);
    done(Accepted);
}

void QtFileDialog::setControlState(int controlId, int state)
{
    if (m_controls)
        m_controls->setState(controlId, state);
}

void QtFileDialog::placeLater(FileDialogConfiguration* configuration)
{
    if (configuration)
        whenExposed([this, configuration] { place(wantedPlacement(*configuration)); });
}

void QtFileDialog::whenExposed(const std::function<void()>& action)
{
    QTimer::singleShot(placementDelay, this, [this, action] {
        if (m_isClosedDown)
            return;
        if (windowHandle() && windowHandle()->isExposed())
            action();
        else
            whenExposed(action);
    });
}

/** A rectangle that fills a screen is how a maximized window was stored. */
void QtFileDialog::place(const QRect& wanted)
{
    const std::vector<ScreenArea> screens = currentScreens();
    if (fillsScreen(wanted, screens)) {
        if (!isMaximized())
            resize(m_configuration->getDefaultDialogSize());
        setWindowState(windowState() | Qt::WindowMaximized);
        return;
    }
    if (isMaximized())
        showNormal();
    const QRect outer = fittedOntoScreens(wanted, screens);
    const QSize frame = frameGeometry().size() - size();
    resize(outer.size() - frame);
    move(outer.topLeft());
}

void QtFileDialog::storeGeometry()
{
    m_configuration->storeFileDialogGeometry(frameGeometry());
}

void QtFileDialog::closeDown()
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

void QtFileDialog::done(int result)
{
    closeDown();
    QFileDialog::done(result);
}

bool QtFileDialog::eventFilter(QObject* watched, QEvent* event)
{
    const bool isOwnersWindow = m_owner && watched == m_owner->window();
    if (isOwnersWindow && event->type() == QEvent::Hide && !event->spontaneous())
        reject();
    return QFileDialog::eventFilter(watched, event);
}

void QtFileDialog::moveEvent(QMoveEvent* event)
{
    QFileDialog::moveEvent(event);
    if (m_isPlaced && !m_isClosedDown)
        m_movementEnd.start();
}

void QtFileDialog::resizeEvent(QResizeEvent* event)
{
    QFileDialog::resizeEvent(event);
    if (m_isPlaced && !m_isClosedDown)
        m_movementEnd.start();
}

void QtFileDialog::showEvent(QShowEvent* event)
{
    QFileDialog::showEvent(event);
    if (m_wasShown)
        return;
    m_wasShown = true;
    stayInFrontOfOwner();
    // The frame was unknown when the window got its first geometry.
    whenExposed([this] {
        placeAsLeft();
        m_isPlaced = true;
        if (m_parts)
            fitColumns();
    });
    if (!m_parts)
        return;
    widenSideBar();
    followListing();
    if (!m_handler)
        return;
    m_configuration->setMinimumDialogWidth(minimumSizeHint().width() + frameGeometry().width() -
                                           width());
    notifyType();
    QTimer::singleShot(0, this, [this] {
        if (m_parts->list->selectionModel()->hasSelection())
            notifySelection();
    });
}

/** To the width of its names, up to a third of the dialog. One that is wider stays so. */
void QtFileDialog::widenSideBar()
{
    const QListView& bar = *m_parts->sideBar;
    const int wanted = bar.sizeHintForColumn(0) + bar.width() - bar.viewport()->width();
    const int whole = m_parts->splitter->width() - m_parts->splitter->handleWidth();
    const int width = std::min(wanted, whole / 3);
    if (width > bar.width())
        m_parts->splitter->setSizes({width, whole - width});
}

/** Columns follow what is listed, which comes bit by bit, until the user sets one. */
void QtFileDialog::followListing()
{
    m_listing.setSingleShot(true);
    m_listing.setInterval(listingDelay);
    connect(&m_listing, &QTimer::timeout, this, &QtFileDialog::fitColumns);
    const auto fitSoon = [this] {
        if (!m_listing.isActive())
            m_listing.start();
    };
    connect(m_parts->list->model(), &QAbstractItemModel::rowsInserted, this, fitSoon);
    connect(m_parts->list->model(), &QAbstractItemModel::dataChanged, this, fitSoon);
    connect(m_parts->details->header(), &QHeaderView::sectionResized, this,
            [this] { m_areColumnsTheUsers |= QGuiApplication::mouseButtons() != Qt::NoButton; });
}

/** Each column gets the width of its texts, names also the rest; what is too wide is scrolled. */
void QtFileDialog::fitColumns()
{
    if (m_areColumnsTheUsers)
        return;
    const QAbstractItemView& rows = *m_parts->details;
    QHeaderView& header = *m_parts->details->header();
    int others = 0;
    for (int column = 1; column < header.count(); ++column) {
        const int width = std::max(rows.sizeHintForColumn(column), header.sectionSizeHint(column));
        header.resizeSection(column, width);
        others += width;
    }
    const int all = rows.viewport()->width();
    header.resizeSection(0, std::max(std::min(rows.sizeHintForColumn(0), all), all - others));
}

template <typename Event>
void QtFileDialog::notify(Event event)
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

void QtFileDialog::notifyType()
{
    notify([this] { m_handler->onTypeChanged(Callbacks(*this)); });
}

void QtFileDialog::notifySelection()
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
    notify([&] { m_handler->onSelectionChanged(files, Callbacks(*this)); });
}

} // namespace Zorvane
