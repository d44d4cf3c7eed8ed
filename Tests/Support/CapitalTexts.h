#pragma once

#include <QtCore/QTranslator>

namespace Zorvane::Testing {

/** A language of its own, to be installed: every text in capitals. */
class CapitalTexts : public QTranslator
{
public:
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
    bool isEmpty() const override { return false; }
};

} // namespace Zorvane::Testing
