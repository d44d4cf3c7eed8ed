#pragma once

#include <QtWidgets/QDialog>

QT_BEGIN_NAMESPACE
class QListWidget;
class QTextBrowser;
class QUrl;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * Reads the documentation that came with the program, or that lies in the sources it was built
 * from: a list of its pages, and the page. Links between pages are followed; what lies outside is
 * left to the browser of the system.
 */
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent = nullptr);

    /** Empty when there is no documentation; the window then says so. */
    static QString documentationFolder();
    /** Shows a page, named as its file, such as "Actions.md"; false where there is none. */
    bool showPage(const QString& page);
    QString currentPage() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void listPages();
    void follow(const QUrl& link);

    QListWidget* m_pages;
    QTextBrowser* m_text;
};

} // namespace Zorvane::Workbench
