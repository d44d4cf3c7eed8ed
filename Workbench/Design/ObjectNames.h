#pragma once

#include <QtCore/QString>

namespace Zorvane::Workbench {

/** What objects of a design may be called: one line of at most so many characters. */
constexpr int s_longestObjectName = 255;

/** Whether names may not hold the character. */
inline bool isControlCharacter(QChar character)
{
    return character.category() == QChar::Other_Control;
}

} // namespace Zorvane::Workbench
