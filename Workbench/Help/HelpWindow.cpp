#include "Workbench/Help/HelpWindow.h"

#include "Workbench/Screens/ScreenFit.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

namespace Zorvane::Workbench {

namespace {

const QString s_firstPage = QStringLiteral("Workbench.md");
constexpr QSize s_size(900, 640);
constexpr int s_widthOfList = 240;
constexpr int s_gapBetweenTitles = 2;

/** The heading that a page starts with. */
QString titleOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QFileInfo(path).completeBaseName();
    const QString line = QString::fromUtf8(file.readLine()).trimmed();
    return line.startsWith(QStringLiteral("# ")) ? line.mid(2) : QFileInfo(path).completeBaseName();
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QDialog(parent)
    , m_pages(new QListWidget(this))
    , m_text(new QTextBrowser(this))
{
    setWindowTitle(tr("Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_pages->setAccessibleName(tr("Pages"));
    m_pages->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pages->setTextElideMode(Qt::ElideNone);
    m_pages->setWordWrap(true);
    m_pages->setResizeMode(QListView::Adjust);
    // Tells where a title of two lines ends.
    m_pages->setSpacing(s_gapBetweenTitles);
    m_text->setAccessibleName(tr("Page"));
    m_text->setOpenLinks(false);
    auto* const sides = new QSplitter(this);
    sides->addWidget(m_pages);
    sides->addWidget(m_text);
    sides->setChildrenCollapsible(false);
    sides->setSizes({s_widthOfList, s_size.width() - s_widthOfList});
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(sides);
    resize(fittedToScreen(*this, s_size));
    listPages();
    connect(m_pages, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (item)
            showPage(item->data(Qt::UserRole).toString());
    });
    connect(m_text, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
    if (!showPage(s_firstPage))
        m_text->setPlainText(tr("The documentation is not installed."));
    m_pages->setFocus();
}

QString HelpWindow::documentationFolder()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QString places[] = {program.filePath(QStringLiteral("../share/doc/zorvane-uitools")),
                              program.filePath(QStringLiteral("../docs")),
                              program.filePath(QStringLiteral("docs"))};
    for (const QString& place : places)
        if (QFileInfo::exists(QDir(place).filePath(s_firstPage)))
            return QDir::cleanPath(place);
    return {};
}

void HelpWindow::listPages()
{
    const QDir folder(documentationFolder());
    for (const QString& file :
         folder.entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name)) {
        auto* const item = new QListWidgetItem(titleOf(folder.filePath(file)));
        item->setToolTip(item->text());
        item->setData(Qt::UserRole, file);
        // What people come for stands first.
        m_pages->insertItem(file == s_firstPage ? 0 : m_pages->count(), item);
    }
}

bool HelpWindow::showPage(const QString& page)
{
    const QString folder = documentationFolder();
    QFile file(QDir(folder).filePath(page));
    if (folder.isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    m_text->setSearchPaths({folder});
    m_text->setMarkdown(QString::fromUtf8(file.readAll()));
    for (int row = 0; row < m_pages->count(); ++row)
        if (m_pages->item(row)->data(Qt::UserRole).toString() == page)
            m_pages->setCurrentRow(row);
    return true;
}

QString HelpWindow::currentPage() const
{
    const QListWidgetItem* const item = m_pages->currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

void HelpWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || currentPage().isEmpty())
        return;
    // The links of a text keep the colour they were made with.
    QScrollBar* const place = m_text->verticalScrollBar();
    const int value = place->value();
    showPage(currentPage());
    place->setValue(value);
}

void HelpWindow::follow(const QUrl& link)
{
    if (!link.isRelative())
        QDesktopServices::openUrl(link);
    else if (!showPage(link.path()) && !link.fragment().isEmpty())
        m_text->scrollToAnchor(link.fragment());
}

} // namespace Zorvane::Workbench
