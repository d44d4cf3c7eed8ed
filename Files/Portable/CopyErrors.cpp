#include "Files/Portable/CopyErrors.h"

#include "Host/Translation/Translator.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace Zorvane {

namespace {

struct ErrorText
{
    int error;
    const char* text;
};

// clang-format off
constexpr std::array<ErrorText, 13> errorTexts{{
    {ENOSPC,       QT_TRANSLATE_NOOP("FileCopyUtility", "There is not enough space on the disk.")},
    {EDQUOT,       QT_TRANSLATE_NOOP("FileCopyUtility", "Your share of the disk is used up.")},
    {EROFS,        QT_TRANSLATE_NOOP("FileCopyUtility", "The disk is write-protected.")},
    {EIO,          QT_TRANSLATE_NOOP("FileCopyUtility", "The disk reports an error.")},
    {EACCES,       QT_TRANSLATE_NOOP("FileCopyUtility", "Access is denied.")},
    {EPERM,        QT_TRANSLATE_NOOP("FileCopyUtility", "The operation is not permitted.")},
    {ENOENT,       QT_TRANSLATE_NOOP("FileCopyUtility", "The file is no longer there.")},
    {EFBIG,        QT_TRANSLATE_NOOP("FileCopyUtility", "The file is too large for the target's file system.")},
    {ENAMETOOLONG, QT_TRANSLATE_NOOP("FileCopyUtility", "The name is too long for the target's file system.")},
    {EINVAL,       QT_TRANSLATE_NOOP("FileCopyUtility", "The target's file system does not allow this.")},
    {EEXIST,       QT_TRANSLATE_NOOP("FileCopyUtility", "Another program keeps creating files of this name.")},
    {EMFILE,       QT_TRANSLATE_NOOP("FileCopyUtility", "Too many files are open.")},
    {ENOTSUP,      QT_TRANSLATE_NOOP("FileCopyUtility",
                       "The target's file system cannot create a file without the risk of replacing another.")},
}};
// clang-format on

constexpr std::array<int, 10> s_fatal{ENOENT, ENOSPC, EDQUOT, EROFS,  EIO,
                                      ENODEV, ENXIO,  ESTALE, EMFILE, ENFILE};

} // namespace

QString describeCopyError(int error)
{
    const auto found = std::find_if(errorTexts.begin(), errorTexts.end(),
                                    [&](const ErrorText& text) { return text.error == error; });
    return found != errorTexts.end() ? Translator::translate("FileCopyUtility", found->text)
                                     : qt_error_string(error);
}

QString describeTargetError(int error)
{
    return error == ENOENT
               ? Translator::translate("FileCopyUtility", "The target folder is no longer there.")
               : describeCopyError(error);
}

bool isRefusedAttribute(int error)
{
    return error == EPERM || error == ENOTSUP || error == ENOSYS || error == EINVAL;
}

bool isMissingFeature(int error)
{
    return error == ENOSYS || error == EINVAL || error == ENOTSUP || error == ESPIPE;
}

bool concernsEveryFile(int error)
{
    return std::find(s_fatal.begin(), s_fatal.end(), error) != s_fatal.end();
}

} // namespace Zorvane
