#include "Host/Translation/Translator.h"

#include <QtCore/QCoreApplication>

#include <utility>

namespace Zorvane {

namespace {

std::shared_ptr<Translator>& registeredTranslator()
{
    static auto s_instance = std::make_shared<Translator>();
    return s_instance;
}

} // namespace

Translator::Translator() = default;
Translator::Translator(const Translator&) = default;
Translator& Translator::operator=(const Translator&) = default;
Translator::~Translator() = default;

std::shared_ptr<Translator> Translator::registerInstance(std::shared_ptr<Translator> instance)
{
    if (!instance)
        instance = std::make_shared<Translator>();
    return std::exchange(registeredTranslator(), std::move(instance));
}

QString Translator::translate(const char* context, const char* sourceText,
                              const char* disambiguation, int count)
{
    const std::shared_ptr<const Translator> instance = registeredTranslator();
    return instance->getText(context, sourceText, disambiguation, count);
}

QString Translator::getText(const char* context, const char* sourceText, const char* disambiguation,
                            int count) const
{
    return QCoreApplication::translate(context, sourceText, disambiguation, count);
}

} // namespace Zorvane
