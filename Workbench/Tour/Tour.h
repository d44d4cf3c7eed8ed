#pragma once

#include "Workbench/Tour/TourContext.h"

#include <QtCore/QStringList>

namespace Zorvane::Workbench {

/**
 * Shows what the Workbench can do without a person, on copies in a temporary folder, and checks
 * that each step shows what it should. Leaves pictures and "tour.md".
 */
class Tour
{
public:
    Tour(MainWindow& window, const QString& folder);

    /** Also opens what the user named, if anything. Returns what was not shown, in words. */
    QStringList perform(const QStringList& paths);

private:
    TourContext m_context;
};

} // namespace Zorvane::Workbench
