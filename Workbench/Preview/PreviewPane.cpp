#include "Workbench/Preview/PreviewPane.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr int s_widestColumn = 220;

QLabel* plainLabel(QWidget* parent)
{
    auto* label = new QLabel(parent);
    // Names of files are no markup.
    label->setTextFormat(Qt::PlainText);
    return label;
}

bool looksLikeNumber(const QString& text)
{
    bool isNumber = false;
    QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&isNumber);
    return isNumber;
}

} // namespace

PictureView::PictureView(QWidget* parent)
    : QWidget(parent)
{}

void PictureView::setPicture(const QImage& picture)
{
    m_picture = picture;
    update();
}

void PictureView::paintEvent(QPaintEvent*)
{
    const QSizeF size = QSizeF(m_picture.size()) / m_picture.devicePixelRatioF();
    const QSizeF room(this->size());
    const QSizeF shown = size.width() > room.width() || size.height() > room.height()
                             ? size.scaled(room, Qt::KeepAspectRatio)
                             : size;
    QRectF target(QPointF(), shown);
    target.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, m_picture);
}

PreviewPane::PreviewPane(QWidget* parent)
    : QWidget(parent)
    , m_title(plainLabel(this))
    , m_pages(new QStackedWidget(this))
    , m_message(plainLabel(this))
    , m_picture(new PictureView(this))
    , m_table(new QTableWidget(this))
    , m_text(new QPlainTextEdit(this))
    , m_note(plainLabel(this))
{
    QFont bold = font();
    bold.setBold(true);
    m_title->setFont(bold);
    for (QLabel* line : {m_title, m_note}) {
        line->setMinimumWidth(1);
        // As high without a text, so that what lies between keeps its size.
        line->setFixedHeight(QFontMetrics(line->font()).height() + 2);
    }
    m_message->setWordWrap(true);
    m_message->setAlignment(Qt::AlignCenter);
    m_message->setMargin(24);
    m_text->setReadOnly(true);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setAccessibleName(tr("Beginning of the text"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    m_table->setAccessibleName(tr("Beginning of the table"));
    m_picture->setAccessibleName(tr("Picture of the mesh"));
    for (QWidget* page : {static_cast<QWidget*>(m_message), static_cast<QWidget*>(m_picture),
                          static_cast<QWidget*>(m_table), static_cast<QWidget*>(m_text)})
        m_pages->addWidget(page);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_note);
}

QSize PreviewPane::contentSize() const
{
    return m_pages->size();
}

QString PreviewPane::title() const
{
    return m_name;
}

QString PreviewPane::note() const
{
    return m_note->text();
}

QString PreviewPane::message() const
{
    return m_kind == PreviewContent::Kind::Message ? m_message->text() : QString();
}

void PreviewPane::showMessage(const QString& text)
{
    show({}, PreviewContent::message(text));
}

void PreviewPane::show(const QString& name, const PreviewContent& content)
{
    m_name = name;
    m_kind = content.kind;
    showTitle();
    const bool isMessage = m_kind == PreviewContent::Kind::Message;
    m_note->setText(isMessage ? QString() : content.note);
    switch (m_kind) {
    case PreviewContent::Kind::Message:
        m_message->setText(name.isEmpty() ? content.note
                                          : tr("%1 cannot be shown:\n%2").arg(name, content.note));
        m_pages->setCurrentWidget(m_message);
        break;
    case PreviewContent::Kind::Picture:
        m_picture->setPicture(content.picture);
        m_picture->setAccessibleDescription(content.note);
        m_pages->setCurrentWidget(m_picture);
        break;
    case PreviewContent::Kind::Table:
        fillTable(content.rows);
        m_pages->setCurrentWidget(m_table);
        break;
    case PreviewContent::Kind::Text:
        m_text->setPlainText(content.text);
        m_pages->setCurrentWidget(m_text);
        break;
    }
}

void PreviewPane::fillTable(const std::vector<QStringList>& rows)
{
    int columns = 0;
    for (const QStringList& row : rows)
        columns = std::max(columns, row.size());
    m_table->clear();
    m_table->setColumnCount(columns);
    m_table->setRowCount(int(rows.size()) - 1);
    QStringList head = rows.empty() ? QStringList() : rows.front();
    while (head.size() < columns)
        head.append(QString());
    m_table->setHorizontalHeaderLabels(head);
    for (int row = 0; row + 1 < int(rows.size()); ++row) {
        const QStringList& cells = rows[std::size_t(row) + 1];
        for (int column = 0; column < cells.size(); ++column) {
            auto* item = new QTableWidgetItem(cells[column]);
            if (looksLikeNumber(cells[column]))
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_table->setItem(row, column, item);
        }
    }
    m_table->resizeColumnsToContents();
    for (int column = 0; column < columns; ++column)
        m_table->setColumnWidth(column, std::min(m_table->columnWidth(column), s_widestColumn));
    m_table->scrollToTop();
}

void PreviewPane::showTitle()
{
    m_title->setText(m_title->fontMetrics().elidedText(m_name, Qt::ElideMiddle, m_title->width()));
    m_title->setToolTip(m_name);
}

void PreviewPane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showTitle();
}

} // namespace Zorvane::Workbench
