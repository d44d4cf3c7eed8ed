#include "Workbench/Texts/Language.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QTranslator>

// Resources of a static library must be asked for, outside of any namespace, unnamed ones too.
static void initializeCatalogues()
{
    Q_INIT_RESOURCE(workbench_catalogues);
}

namespace Zorvane::Workbench {

namespace {

const QString s_ownName = QStringLiteral("workbench");
const QString s_ownFolder = QStringLiteral(":/workbench/translations");

} // namespace

Language::Language(const QLocale& locale)
{
    initializeCatalogues();
    // Below the others: the plurals of texts that another language lacks.
    add(QLocale(QLocale::English), s_ownName, s_ownFolder);
    // Texts of the library or of Qt in a language that ours are not in would make a mixture.
    if (locale.language() == QLocale::English || !add(locale, s_ownName, s_ownFolder))
        return;
    add(locale, QStringLiteral("zorvane"), QStringLiteral(":/Zorvane/Translations"));
    add(locale, QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
}

// Texts leave the application when they go.
Language::~Language() = default;

/** False when there are no such texts for the locale. */
bool Language::add(const QLocale& locale, const QString& name, const QString& folder)
{
    auto texts = std::make_unique<QTranslator>();
    if (!texts->load(locale, name, QStringLiteral("_"), folder) ||
        !QCoreApplication::installTranslator(texts.get()))
        return false;
    m_texts.push_back(std::move(texts));
    return true;
}

} // namespace Zorvane::Workbench
