#include "Workbench/Preview/PreviewWorker.h"

#include "Workbench/Texts/Language.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <cstdio>
#include <cstring>
#include <new>

namespace Zorvane::Workbench {

namespace {

constexpr char s_mode[] = "--read-preview";
constexpr int s_argumentCount = 9;

PreviewRequest requestFrom(const QStringList& arguments)
{
    PreviewRequest request;
    request.limits.memory = arguments[2].toLongLong();
    request.limits.milliseconds = arguments[3].toInt();
    request.look.pixels = QSize(arguments[4].toInt(), arguments[5].toInt());
    request.look.dark = arguments[6].toInt() != 0;
    // The system's own knows more of what the user wants than its name tells.
    if (arguments[7] != QLocale().name())
        QLocale::setDefault(QLocale(arguments[7]));
    request.path = arguments[8];
    return request;
}

PreviewContent read(const PreviewRequest& request)
{
    try {
        return FilePreview::read(request.path, request.look);
    } catch (const std::bad_alloc&) {
        return PreviewContent::message(FilePreview::tr("takes too much memory"));
    }
}

bool writeAll(const QByteArray& bytes)
{
    makeOutputBinary();
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

} // namespace

QStringList PreviewRequest::arguments() const
{
    return {QString::fromLatin1(s_mode),
            QString::number(limits.memory),
            QString::number(limits.milliseconds),
            QString::number(look.pixels.width()),
            QString::number(look.pixels.height()),
            QString::number(int(look.dark)),
            QLocale().name(),
            path};
}

std::optional<int> runPreviewWorker(int argc, char** argv)
{
    if (argc != s_argumentCount || std::strcmp(argv[1], s_mode) != 0)
        return std::nullopt;
    const QCoreApplication application(argc, argv);
    const PreviewRequest request = requestFrom(QCoreApplication::arguments());
    const Language language{QLocale()};
    // Without limits, nothing that somebody else wrote is read.
    if (!limitThisProcess(request.limits))
        return EXIT_FAILURE;
    return writeAll(read(request).toBytes()) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace Zorvane::Workbench
