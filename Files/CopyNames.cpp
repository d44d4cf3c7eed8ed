#include "Files/CopyNames.h"

#include "Files/PathText.h"

#include <QtCore/QString>

#include <algorithm>

namespace Zorvane {

namespace {

constexpr std::size_t s_leastLimit = 32;
// Longer endings are no endings of file types, but part of a sentence used as a name.
constexpr std::size_t s_longestEnding = 32;

std::size_t endingStart(const std::string& leaf)
{
    const std::size_t dot = leaf.rfind('.');
    const bool hasEnding = dot != std::string::npos && dot > 0 && dot + 1 < leaf.size() &&
                           leaf.size() - dot <= s_longestEnding &&
                           leaf.find_first_not_of('.') < dot;
    return hasEnding ? dot : leaf.size();
}

/** The longest beginning of at most `mostBytes` that cuts no character in two. */
std::string wholeCharacters(const std::string& text, std::size_t mostBytes)
{
    std::size_t end = 0;
    while (end < text.size()) {
        const std::size_t length = std::max<std::size_t>(utf8SequenceLength(text, end), 1);
        if (end + length > mostBytes)
            break;
        end += length;
    }
    return text.substr(0, end);
}

std::string shortened(const std::string& stem, std::size_t mostBytes)
{
    if (stem.size() <= mostBytes)
        return stem;
    std::string shorter = wholeCharacters(stem, mostBytes);
    while (shorter.size() > 1 && (shorter.back() == ' ' || shorter.back() == '.'))
        shorter.pop_back();
    return shorter;
}

std::string numbered(const std::string& leaf, const std::string& number, std::size_t mostBytes)
{
    std::size_t cut = endingStart(leaf);
    if (leaf.size() - cut + number.size() >= mostBytes)
        cut = leaf.size();
    const std::string ending = number + leaf.substr(cut);
    return shortened(leaf.substr(0, cut), mostBytes - ending.size()) + ending;
}

} // namespace

std::string keepBothName(const std::string& leaf, std::size_t mostBytes, const NameIsTaken& isTaken,
                         unsigned& number)
{
    const std::size_t limit = std::max(mostBytes, s_leastLimit);
    for (;; ++number) {
        std::string name = numbered(leaf, " (" + std::to_string(number) + ")", limit);
        if (!isTaken(name))
            return name;
    }
}

std::string foldedName(const std::string& leaf)
{
    const QString name = pathFromBytes(leaf);
    // Normalizing, which takes long, has nothing to do there.
    if (isAscii(name))
        return pathToBytes(name.toCaseFolded());
    return pathToBytes(name.normalized(QString::NormalizationForm_C).toCaseFolded());
}

} // namespace Zorvane
