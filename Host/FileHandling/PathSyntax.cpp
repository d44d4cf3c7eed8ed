#include "Host/FileHandling/PathSyntax.h"

#include <QtCore/QDir>

#include <algorithm>

namespace Zorvane {

namespace {

constexpr std::string_view s_verbatim = "//?/";
constexpr std::string_view s_device = "//./";
constexpr std::string_view s_verbatimUnc = "//?/UNC/";

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

bool isDriveLetter(char letter)
{
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
}

/** The end of the name that starts at the position. */
std::size_t nameEnd(std::string_view path, std::size_t position)
{
    return std::min(path.find('/', position), path.size());
}

/** The end of "server/share", which starts at the position. */
std::size_t shareEnd(std::string_view path, std::size_t position)
{
    const std::size_t server = nameEnd(path, position);
    return server == path.size() ? server : nameEnd(path, server + 1);
}

/** The end of "C:/" or "C:", if the position starts one, else the position. */
std::size_t driveEnd(std::string_view path, std::size_t position)
{
    if (path.size() < position + 2 || !isDriveLetter(path[position]) || path[position + 1] != ':')
        return position;
    const bool absolute = path.size() > position + 2 && path[position + 2] == '/';
    return position + (absolute ? 3 : 2);
}

std::size_t windowsRootLength(std::string_view path)
{
    if (startsWith(path, s_verbatimUnc))
        return shareEnd(path, s_verbatimUnc.size());
    if (startsWith(path, s_verbatim) || startsWith(path, s_device)) {
        const std::size_t drive = driveEnd(path, s_verbatim.size());
        return drive > s_verbatim.size() ? drive : nameEnd(path, s_verbatim.size());
    }
    if (startsWith(path, "//"))
        return shareEnd(path, 2);
    if (startsWith(path, "/"))
        return 1;
    return driveEnd(path, 0);
}

/** Cuts the separators that end the path, but none of the root's. */
std::string_view trimmed(std::string_view path, std::size_t root)
{
    while (path.size() > root && path.back() == '/')
        path.remove_suffix(1);
    return path;
}

/** Where the last name of a path without separators at its end starts. */
std::size_t leafStart(std::string_view path, std::size_t root)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? root : std::max(slash + 1, root);
}

} // namespace

PathSyntax nativePathSyntax()
{
    return QDir::separator() == QLatin1Char('\\') ? PathSyntax::Windows : PathSyntax::Posix;
}

std::string withForwardSlashes(std::string path, PathSyntax syntax)
{
    if (syntax == PathSyntax::Windows)
        std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string withNativeSeparators(std::string path, PathSyntax syntax)
{
    if (syntax == PathSyntax::Windows)
        std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::size_t rootLength(std::string_view path, PathSyntax syntax)
{
    if (syntax == PathSyntax::Windows)
        return windowsRootLength(path);
    return startsWith(path, "/") ? 1 : 0;
}

std::string parentOf(std::string_view path, PathSyntax syntax)
{
    const std::size_t root = rootLength(path, syntax);
    const std::string_view whole = trimmed(path, root);
    if (whole.size() <= root)
        return {};
    const std::size_t leaf = leafStart(whole, root);
    const std::string_view parent = trimmed(whole.substr(0, leaf), root);
    return parent.empty() ? std::string(".") : std::string(parent);
}

std::string leafOf(std::string_view path, PathSyntax syntax)
{
    const std::size_t root = rootLength(path, syntax);
    const std::string_view whole = trimmed(path, root);
    return std::string(whole.substr(leafStart(whole, root)));
}

std::string extensionOf(std::string_view path, PathSyntax syntax)
{
    const std::string leaf = leafOf(path, syntax);
    const std::size_t dot = leaf.rfind('.');
    return dot == std::string::npos || dot == 0 ? std::string() : leaf.substr(dot + 1);
}

} // namespace Zorvane
