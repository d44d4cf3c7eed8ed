#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QImage>

namespace Zorvane::Workbench {

/**
 * What a tour leaves behind: numbered pictures in a folder, and "tour.md", which tells what each of
 * them shows and what was checked.
 */
class TourReport
{
public:
    explicit TourReport(const QString& folder);

    void beginStep(const QString& title, const QString& text);
    /** Notes the outcome; the tour goes on either way. */
    void expect(bool met, const QString& what);
    /** Stores the picture under the next number and checks that it is not blank. */
    void addPicture(const QString& name, const QImage& picture);
    void addNote(const QString& text);

    const QStringList& failures() const { return m_failures; }
    int pictureCount() const { return m_pictures; }
    /** Writes "tour.md"; false when the folder cannot be written to. */
    bool write();

private:
    void addParagraph(const QString& text);

    QString m_folder;
    QStringList m_lines;
    QStringList m_failures;
    QString m_step;
    int m_steps = 0;
    int m_pictures = 0;
};

} // namespace Zorvane::Workbench
