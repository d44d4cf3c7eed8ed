#pragma once

#include <QtCore/QLocale>
#include <QtCore/QString>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QTranslator;
QT_END_NAMESPACE

namespace Zorvane::Workbench {

/**
 * Has the application speak a language for as long as this lives: the first of the locale's that
 * there are texts in, else English. That holds for the Workbench's own texts, the library's and
 * Qt's alike. Windows that are open already keep their texts.
 */
class Language
{
public:
    explicit Language(const QLocale& locale);
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;
    ~Language();

private:
    bool add(const QLocale& locale, const QString& name, const QString& folder);

    std::vector<std::unique_ptr<QTranslator>> m_texts;
};

} // namespace Zorvane::Workbench
