#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

namespace Zorvane::Testing {

/** The library speaks German as long as it lives. */
class GermanTexts
{
public:
    GermanTexts()
        : m_isInstalled(m_texts.load(QStringLiteral(":/Zorvane/Translations/zorvane_de")) &&
                        QCoreApplication::installTranslator(&m_texts))
    {}

    /** False where the library was built without lrelease, and so without translations. */
    bool isInstalled() const { return m_isInstalled; }

private:
    QTranslator m_texts;
    const bool m_isInstalled;
};

} // namespace Zorvane::Testing
