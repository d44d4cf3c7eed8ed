#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QApplication;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

enum class Appearance
{
    /** What the desktop tells. */
    System,
    Light,
    Dark
};

/** Colours the whole application, windows already open included. */
void applyAppearance(QApplication& application, Appearance appearance);
/** Across runs, in the application's settings. */
Appearance storedAppearance();
/** False if it could not be stored. */
bool storeAppearance(Appearance appearance);

} // namespace Zorvane::Workbench
