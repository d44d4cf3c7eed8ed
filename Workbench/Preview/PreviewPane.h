#pragma once

#include "Workbench/Preview/PreviewContent.h"

#include <QtWidgets/QWidget>

QT_BEGIN_NAMESPACE
class QLabel;
class QPlainTextEdit;
class QStackedWidget;
class QTableWidget;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/** A picture, scaled down to the room there is and never up. */
class PictureView : public QWidget
{
    Q_OBJECT

public:
    explicit PictureView(QWidget* parent = nullptr);

    void setPicture(const QImage& picture);
    const QImage& picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_picture;
};

/** Shows what there is to see of one file: its name, the content, and facts below. */
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPane(QWidget* parent = nullptr);

    /** Without a name, a message stands by itself. */
    void show(const QString& name, const PreviewContent& content);
    /** A text in place of any content. */
    void showMessage(const QString& text);

    /** The room for a picture, in logical pixels. */
    QSize contentSize() const;
    PreviewContent::Kind shownKind() const { return m_kind; }
    QString title() const;
    QString note() const;
    QString message() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showTitle();
    void fillTable(const std::vector<QStringList>& rows);

    QString m_name;
    PreviewContent::Kind m_kind = PreviewContent::Kind::Message;
    QLabel* m_title;
    QStackedWidget* m_pages;
    QLabel* m_message;
    PictureView* m_picture;
    QTableWidget* m_table;
    QPlainTextEdit* m_text;
    QLabel* m_note;
};

} // namespace Zorvane::Workbench
