#pragma once

#include "Files/Windows/ComPointer.h"
#include "Tests/Support/Windows/CallScript.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <windows.h>

#include <servprov.h>

namespace Zorvane::Testing {

/**
 * The way from a dialog to its list of files: services, browser, view. The list shows files of a
 * real folder. `calls` is used as long as any of it lives.
 */
ComPointer<IServiceProvider> fakeShellServices(const QString& folder, const QStringList& files,
                                               CallScript& calls);

} // namespace Zorvane::Testing
