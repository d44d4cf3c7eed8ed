#include "Host/System/CommandLineParser.h"
#include "Workbench/Preview/PreviewWorker.h"
#include "Workbench/Texts/Language.h"
#include "Workbench/Tour/Tour.h"
#include "Workbench/Window/Appearance.h"
#include "Workbench/Window/MainWindow.h"
#include "Workbench/Window/SampleDesigns.h"
#include "Workbench/Window/WorkbenchStyle.h"
#include "Workbench/Writing/SettingsFile.h"

#include <QtCore/QLocale>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

using namespace Zorvane::Workbench;

constexpr int s_tourPointSize = 9;

/** Ends with 0 when everything was shown as it should be. */
int takeTour(QApplication& application, const QString& folder, const QStringList& paths)
{
    // The same pictures for everybody: neither the user's settings nor the user's number format.
    const QTemporaryDir settings;
    QSettings::setPath(settingsFileFormat(), QSettings::UserScope, settings.path());
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

/** Opens `paths`, or a sample without any, and returns when the window is closed. */
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

/** Help and the version are asked for in shells, too, where there may be no display. */
bool asksForText(int argc, char** argv)
{
    constexpr std::array<const char*, 5> options{"-h", "--help", "--help-all", "-v", "--version"};
    return std::any_of(argv, argv + argc, [&options](const std::string& argument) {
        return std::find(options.begin(), options.end(), argument) != options.end();
    });
}

/** What an application of either kind is called, and where it keeps its settings. */
void nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Zorvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZORVANE_VERSION));
    QSettings::setDefaultFormat(settingsFileFormat());
}

QCommandLineOption tourOption()
{
    return {QStringLiteral("tour"),
            QCoreApplication::translate(
                "main", "Shows what the program can do and writes pictures to <folder>."),
            QStringLiteral("folder")};
}

/** Ends the program where the arguments ask for a text, or are wrong. */
QCommandLineParser& parseArguments(const QCommandLineOption& tour)
{
    QCommandLineParser& parser = Zorvane::CommandLineParser::instance()->options();
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Looks at sheet-metal forming designs."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        QStringLiteral("path"),
        QCoreApplication::translate("main", "Design folders, design files or mesh files to open."),
        QStringLiteral("[path...]"));
    parser.addOption(tour);
    Zorvane::CommandLineParser::instance()->process();
    return parser;
}

} // namespace

int main(int argc, char** argv)
{
    // Started by our own preview: one file, no windows.
    if (const std::optional<int> result = runPreviewWorker(argc, argv))
        return *result;
    nameApplication();
    if (asksForText(argc, argv)) {
        const QCoreApplication application(argc, argv);
        const Language language{QLocale()};
        parseArguments(tourOption());
        return EXIT_SUCCESS;
    }
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setStyle(new WorkbenchStyle);
    auto language = std::make_unique<Language>(QLocale());
    const QCommandLineOption tour = tourOption();
    const QCommandLineParser& parser = parseArguments(tour);
    if (parser.isSet(tour)) {
        language.reset();
        return takeTour(application, parser.value(tour), parser.positionalArguments());
    }
    return openWindow(application, parser.positionalArguments());
}
