#pragma once

#include <utility>

namespace Zorvane {

/**
 * As long as it lives, a part of the host is replaced by another one: `Part` is a class with
 * `registerInstance`, such as `Translator`, `PathConfiguration`, `ColorConfiguration`.
 *
 *     const ScopedReplacement<Translator> texts(std::make_shared<OwnTranslator>());
 *
 * Replacements end in the reverse order of their beginnings, as local objects do. An application
 * that replaces a part for good calls `Part::registerInstance` instead.
 */
template <typename Part>
class ScopedReplacement
{
public:
    using Instance = decltype(Part::registerInstance({}));

    explicit ScopedReplacement(Instance instance)
        : m_previous(Part::registerInstance(std::move(instance)))
    {}
    ~ScopedReplacement() { Part::registerInstance(std::move(m_previous)); }

    ScopedReplacement(const ScopedReplacement&) = delete;
    ScopedReplacement& operator=(const ScopedReplacement&) = delete;

private:
    Instance m_previous;
};

} // namespace Zorvane
