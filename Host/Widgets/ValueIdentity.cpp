#include "Host/Widgets/ValueIdentity.h"

#include "Host/Identifiers/IDCombiner.h"

#include <QtGui/QColor>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>

#include <algorithm>
#include <cstring>

namespace Zorvane {

namespace {

bool isSameList(const QVariantList& left, const QVariantList& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), isCertainlySame);
}

bool isSameMap(const QVariantMap& left, const QVariantMap& right)
{
    return left.keys() == right.keys() && isSameList(left.values(), right.values());
}

/** Bit by bit: a zero with a sign is shown with it. */
template <typename Number>
bool isSameNumber(const QVariant& left, const QVariant& right)
{
    return std::memcmp(left.constData(), right.constData(), sizeof(Number)) == 0;
}

/** Those whose `==` is exact. */
bool comparesExactly(int type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::QChar:
    case QMetaType::QString:
    case QMetaType::QStringList:
    case QMetaType::QByteArray:
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QUuid:
    case QMetaType::QUrl:
    case QMetaType::QPoint:
    case QMetaType::QSize:
    case QMetaType::QRect:
        return true;
    default:
        return false;
    }
}

} // namespace

bool isCertainlySame(const QVariant& left, const QVariant& right)
{
    const int type = left.userType();
    if (type != right.userType() || left.isNull() != right.isNull())
        return false;
    switch (type) {
    case QMetaType::UnknownType:
        return true;
    case QMetaType::Double:
        return isSameNumber<double>(left, right);
    case QMetaType::Float:
        return isSameNumber<float>(left, right);
    case QMetaType::QVariantList:
        return isSameList(left.toList(), right.toList());
    case QMetaType::QVariantMap:
        return isSameMap(left.toMap(), right.toMap());
    case QMetaType::QIcon:
        return left.value<QIcon>().cacheKey() == right.value<QIcon>().cacheKey();
    case QMetaType::QPixmap:
        return left.value<QPixmap>().cacheKey() == right.value<QPixmap>().cacheKey();
    case QMetaType::QColor:
        // Other ways of naming a colour are compared with tolerance.
        return left == right && left.value<QColor>().spec() == QColor::Rgb;
    default:
        break;
    }
    if (type == qMetaTypeId<IDCombiner>())
        return left.value<IDCombiner>() == right.value<IDCombiner>();
    return comparesExactly(type) && left == right;
}

} // namespace Zorvane
