#include "Files/Portable/TemporaryNames.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QString>
#include <QtCore/QSysInfo>

namespace Zorvane {

namespace {

constexpr char s_digits[] = "0123456789abcdefghijklmnopqrstuv";
constexpr int s_bitsOfDigit = 5;
constexpr int s_machineDigits = 8;
constexpr int s_randomDigits = 13;

std::string asDigits(quint64 number, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i, number >>= s_bitsOfDigit)
        text += s_digits[number & 31U];
    return text;
}

std::string makeStart()
{
    QByteArray machine = QSysInfo::machineUniqueId();
    if (machine.isEmpty())
        machine = QSysInfo::machineHostName().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(machine, QCryptographicHash::Sha256);
    quint64 number = 0;
    for (int i = 0; i < s_bitsOfDigit; ++i)
        number = number << 8U | static_cast<unsigned char>(hash[i]);
    return ".zvcopy-" + asDigits(number, s_machineDigits) + '-';
}

const std::string& startOfNames()
{
    static const std::string start = makeStart();
    return start;
}

} // namespace

std::string temporaryCopyName(quint64 random)
{
    return startOfNames() + asDigits(random, s_randomDigits);
}

bool isTemporaryCopyName(const std::string& name)
{
    const std::string& start = startOfNames();
    return name.size() == start.size() + s_randomDigits &&
           name.compare(0, start.size(), start) == 0 &&
           name.find_first_not_of(s_digits, start.size()) == std::string::npos;
}

} // namespace Zorvane
