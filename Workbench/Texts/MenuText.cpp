#include "Workbench/Texts/MenuText.h"

namespace Zorvane::Workbench {

namespace {

constexpr int longestMenuText = 60;

} // namespace

QString menuText(const QString& name)
{
    QString text = name;
    const int half = longestMenuText / 2;
    if (text.size() > longestMenuText)
        text = text.left(half) + QChar(0x2026) + text.right(half);
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace Zorvane::Workbench
