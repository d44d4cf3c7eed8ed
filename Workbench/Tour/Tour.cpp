#include "Workbench/Tour/Tour.h"

#include "Workbench/Tour/AppearanceSteps.h"
#include "Workbench/Tour/CommandSteps.h"
#include "Workbench/Tour/ConversionSteps.h"
#include "Workbench/Tour/DesignSteps.h"
#include "Workbench/Tour/DialogSteps.h"
#include "Workbench/Tour/ImportSteps.h"
#include "Workbench/Tour/OpenSteps.h"
#include "Workbench/Tour/QuestionSteps.h"
#include "Workbench/Tour/ReadingSteps.h"
#include "Workbench/Tour/ReferenceSteps.h"
#include "Workbench/Tour/SaveSteps.h"
#include "Workbench/Tour/StressSteps.h"
#include "Workbench/Tour/TourPart.h"
#include "Workbench/Window/MainWindow.h"

namespace Zorvane::Workbench {

namespace {

constexpr QSize s_windowSize(1360, 820);

/** What the user named when starting the program. */
class NamedPaths : private TourPart
{
public:
    using TourPart::TourPart;

    void open(const QStringList& paths)
    {
        m_report.beginStep(text("What was named"), paths.join(text(", ")));
        reopen(paths);
        m_report.expect(m_driver.waitUntilRead(), text("all meshes are read"));
        picture(text("what-was-named"));
    }
};

} // namespace

Tour::Tour(MainWindow& window, const QString& folder)
    : m_context(window, folder)
{}

QStringList Tour::perform(const QStringList& paths)
{
    // The same on every screen, and on none.
    m_context.window.resizeAndDivide(s_windowSize);
    m_context.window.show();
    DesignSteps(m_context).perform();
    OpenSteps(m_context).perform();
    ImportSteps(m_context).perform();
    SaveSteps(m_context).perform();
    ConversionSteps(m_context).perform();
    QuestionSteps(m_context).perform();
    ReferenceSteps(m_context).perform();
    CommandSteps(m_context).perform();
    ReadingSteps(m_context).perform();
    StressSteps(m_context).perform();
    DialogSteps(m_context).perform();
    AppearanceSteps(m_context).perform();
    if (!paths.isEmpty())
        NamedPaths(m_context).open(paths);
    QStringList failures = m_context.report.failures();
    if (!m_context.report.write())
        failures << QStringLiteral("tour.md cannot be written");
    return failures;
}

} // namespace Zorvane::Workbench
