#include "Workbench/Tour/BoxGallery.h"

#include "Workbench/Tour/DialogAnswers.h"
#include "Workbench/Window/Appearance.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <algorithm>

namespace Zorvane::Workbench {

namespace {

constexpr QSize s_gallerySize(1360, 820);
constexpr int s_galleryGap = 24;

QImage grabbed(QWidget& widget, Appearance appearance)
{
    applyAppearance(*qApp, appearance);
    QCoreApplication::sendPostedEvents();
    return widget.grab().toImage();
}

QImage galleryOf(const std::vector<QImage>& boxes, const QColor& ground)
{
    QImage gallery(s_gallerySize, QImage::Format_RGB32);
    gallery.fill(ground);
    QPainter painter(&gallery);
    QPoint place(s_galleryGap, s_galleryGap);
    int rowHeight = 0;
    for (const QImage& box : boxes) {
        if (place.x() + box.width() + s_galleryGap > gallery.width()) {
            place = QPoint(s_galleryGap, place.y() + rowHeight + s_galleryGap);
            rowHeight = 0;
        }
        painter.drawImage(place, box);
        place.rx() += box.width() + s_galleryGap;
        rowHeight = std::max(rowHeight, box.height());
    }
    return gallery;
}

} // namespace

bool BoxGallery::collect(const std::function<void()>& command)
{
    DialogAnswers answers;
    answers.add([this](QDialog& box) {
        m_dark.push_back(grabbed(box, Appearance::Dark));
        m_light.push_back(grabbed(box, Appearance::Light));
        box.reject();
    });
    command();
    return answers.allGiven();
}

QImage BoxGallery::light() const
{
    return galleryOf(m_light, Qt::lightGray);
}

QImage BoxGallery::dark() const
{
    return galleryOf(m_dark, Qt::black);
}

} // namespace Zorvane::Workbench
