#include "Host/FileHandling/FileName.h"

#include "Host/FileHandling/PathSyntax.h"

namespace Zorvane {

FileName::FileName(const std::string& path)
    : m_path(withForwardSlashes(path, nativePathSyntax()))
{}

FileName::FileName(const char* path)
    : FileName(std::string(path))
{}

FileName::FileName(const QString& path)
    : FileName(path.toStdString())
{}

std::string FileName::toNativeString() const
{
    return withNativeSeparators(m_path, nativePathSyntax());
}

QString FileName::toQString() const
{
    return QString::fromStdString(m_path);
}

std::string FileName::getExtension() const
{
    return extensionOf(m_path, nativePathSyntax());
}

FileName FileName::getParentPath() const
{
    return FileName(parentOf(m_path, nativePathSyntax()));
}

std::string FileName::getLeafName() const
{
    return leafOf(m_path, nativePathSyntax());
}

} // namespace Zorvane
