#include "Workbench/Tour/TourReport.h"

#include "Workbench/Writing/WholeFile.h"

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QSet>

namespace Zorvane::Workbench {

namespace {

constexpr int s_fewestColours = 64;

bool isBlank(const QImage& picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); y += 2) {
        for (int x = 0; x < picture.width(); x += 2)
            colours.insert(picture.pixel(x, y));
        if (colours.size() >= s_fewestColours)
            return false;
    }
    return true;
}

/** In memory first: QImage::save reports success whether or not the disk has taken all of it. */
bool storePicture(const QImage& picture, const QString& path)
{
    QBuffer content;
    return content.open(QIODevice::WriteOnly) && picture.save(&content, "PNG") &&
           writeWholeFile(path, content.data()).isEmpty();
}

} // namespace

TourReport::TourReport(const QString& folder)
    : m_folder(folder)
    , m_lines{QStringLiteral("# A tour of the Workbench")}
{
    if (!QDir().mkpath(folder))
        m_failures << QStringLiteral("cannot make the folder ") + folder;
}

void TourReport::beginStep(const QString& title, const QString& text)
{
    m_step = title;
    addParagraph(QStringLiteral("## %1. %2").arg(++m_steps).arg(title));
    addParagraph(text);
}

void TourReport::expect(bool met, const QString& what)
{
    addNote(QStringLiteral("%1 %2").arg(
        met ? QStringLiteral("shown:") : QStringLiteral("**NOT SHOWN:**"), what));
    if (!met)
        m_failures << QStringLiteral("%1: %2").arg(m_step, what);
}

void TourReport::addPicture(const QString& name, const QImage& picture)
{
    const QString file =
        QStringLiteral("%1-%2.png").arg(++m_pictures, 2, 10, QLatin1Char('0')).arg(name);
    expect(!isBlank(picture), QStringLiteral("a picture that is not blank"));
    expect(storePicture(picture, QDir(m_folder).filePath(file)),
           QStringLiteral("%1 is stored").arg(file));
    addParagraph(QStringLiteral("![%1](%2)").arg(m_step, file));
}

void TourReport::addNote(const QString& text)
{
    if (!m_lines.last().startsWith(QLatin1String("- ")))
        m_lines << QString();
    m_lines << QStringLiteral("- %1").arg(text);
}

void TourReport::addParagraph(const QString& text)
{
    if (!text.isEmpty())
        m_lines << QString() << text;
}

bool TourReport::write()
{
    addParagraph(m_failures.isEmpty()
                     ? QStringLiteral("Everything was shown as it should be.")
                     : QStringLiteral("%1 expectations were not met.").arg(m_failures.size()));
    m_lines << QString();
    return writeWholeFile(QDir(m_folder).filePath(QStringLiteral("tour.md")),
                          m_lines.join(QLatin1Char('\n')).toUtf8())
        .isEmpty();
}

} // namespace Zorvane::Workbench
