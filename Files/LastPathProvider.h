#pragma once

#include "Files/DefaultPathProvider.h"

namespace Zorvane {

/** Opens dialogs where the scope was used last, in whatever run of the application. */
class ZORVANE_UITOOLS_EXPORT LastPathProvider : public DefaultPathProvider
{
public:
    LastPathProvider();
    LastPathProvider(const LastPathProvider& other);
    LastPathProvider& operator=(const LastPathProvider& other);
    ~LastPathProvider() override;

    /** The one of the process, made at the first call; owned by the library. */
    static LastPathProvider* getInstance();

    QString getPathFromScope(const QString& scope) override;

private:
    static std::shared_ptr<LastPathProvider> s_instance;
};

} // namespace Zorvane
