#include "Files/LastPathProvider.h"

namespace Zorvane {

std::shared_ptr<LastPathProvider> LastPathProvider::s_instance;

LastPathProvider::LastPathProvider() = default;
LastPathProvider::LastPathProvider(const LastPathProvider& other) = default;
LastPathProvider& LastPathProvider::operator=(const LastPathProvider& other) = default;
LastPathProvider::~LastPathProvider() = default;

LastPathProvider* LastPathProvider::getInstance()
{
    if (!s_instance)
        s_instance = std::make_shared<LastPathProvider>();
    return s_instance.get();
}

QString LastPathProvider::getPathFromScope(const QString& scope)
{
    return getLastPathFromScope(scope);
}

} // namespace Zorvane
