#pragma once

#include <QtGui/QImage>

#include <functional>
#include <vector>

namespace Zorvane::Workbench {

/** Takes pictures of the boxes that commands show, light and dark, and calls the commands off. */
class BoxGallery
{
public:
    /** Whether the command showed a box, and just one. */
    bool collect(const std::function<void()>& command);

    /** The boxes so far, one beside the other. */
    QImage light() const;
    QImage dark() const;

private:
    std::vector<QImage> m_light;
    std::vector<QImage> m_dark;
};

} // namespace Zorvane::Workbench
