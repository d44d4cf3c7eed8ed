#include "Files/FileCopier.h"

#include <utility>

namespace Zorvane {

namespace {

FileCopierFactory& currentFactory()
{
    static FileCopierFactory factory = createPlatformFileCopier;
    return factory;
}

} // namespace

FileCopier::FileCopier() = default;
FileCopier::~FileCopier() = default;

std::unique_ptr<FileCopier> createFileCopier()
{
    return currentFactory()();
}

FileCopierReplacement::FileCopierReplacement(FileCopierFactory factory)
    : m_previous(std::exchange(currentFactory(), std::move(factory)))
{}

FileCopierReplacement::~FileCopierReplacement()
{
    currentFactory() = std::move(m_previous);
}

} // namespace Zorvane
