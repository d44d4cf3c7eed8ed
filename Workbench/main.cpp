#include "Host/System/CommandLineParser.h"
#include "Workbench/Preview/PreviewWorker.h"
#include "Workbench/Texts/Language.h"
#include "Workbench/Tour/Tour.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/SampleDesigns.h"
#include "Workbench/Window/WorkbenchStyle.h"

#include <QtCore/QLocale>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <memory>

namespace {

using namespace Zorvane::Workbench;

constexpr int s_tourPointSize = 9;

/** Ends with 0 when everything was shown as it should be. */
int takeTour(QApplication& application, const QString& folder, const QStringList& paths)
{
    // The same pictures for everybody: neither the user's settings nor the user's number format.
    const QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const Language language{QLocale()};
    QFont font = QApplication::font();
    font.setPointSize(s_tourPointSize);
    QApplication::setFont(font);
    applyAppearance(application, Appearance::Light);
    MainWindow window;
    Tour tour(window, folder);
    const QStringList failures = tour.perform(paths);
    // Folders that are watched cannot be removed on every system.
    window.session().close();
    for (const QString& failure : failures)
        std::fprintf(stderr, "not shown: %s\n", qPrintable(failure));
    return failures.isEmpty() ? 0 : 1;
}

int openWindow(QApplication& application, QStringList paths)
{
    applyAppearance(application, storedAppearance());
    MainWindow window;
    window.keepLayout();
    if (paths.isEmpty())
        paths << sampleFolder(QStringLiteral("drawn-cup"));
    paths.removeAll(QString());
    window.show();
    window.open(paths);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    // Started by our own preview: one file, no windows.
    if (const std::optional<int> result = runPreviewWorker(argc, argv))
        return *result;
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Zorvane"));
    QApplication::setApplicationName(QStringLiteral("Workbench"));
    QApplication::setApplicationVersion(QStringLiteral(ZORVANE_VERSION));
    QApplication::setStyle(new WorkbenchStyle);

    auto language = std::make_unique<Language>(QLocale());
    QCommandLineParser& parser = Zorvane::CommandLineParser::instance()->options();
    parser.setApplicationDescription(
        QApplication::translate("main", "Looks at sheet-metal forming designs."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        QStringLiteral("path"),
        QApplication::translate("main", "Design folders, design files or mesh files to open."),
        QStringLiteral("[path...]"));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        QApplication::translate("main",
                                "Shows what the program can do and writes pictures to <folder>."),
        QStringLiteral("folder"));
    parser.addOption(tour);
    Zorvane::CommandLineParser::instance()->process();

    if (parser.isSet(tour)) {
        language.reset();
        return takeTour(application, parser.value(tour), parser.positionalArguments());
    }
    return openWindow(application, parser.positionalArguments());
}
