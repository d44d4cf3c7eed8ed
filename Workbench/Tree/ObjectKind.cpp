#include "Workbench/Tree/ObjectKind.h"

#include <QtCore/QCoreApplication>

namespace Zorvane::Workbench {

namespace {

struct KindRow
{
    ObjectKind kind;
    const char* plural;
    const char* icon;
};

// clang-format off
constexpr std::array<KindRow, 7> s_kinds{{
    {ObjectKind::Design,    QT_TRANSLATE_NOOP("Zorvane::Workbench::ObjectKind", "Designs"),    ":/workbench/design.svg"},
    {ObjectKind::Part,      QT_TRANSLATE_NOOP("Zorvane::Workbench::ObjectKind", "Parts"),      ":/Icons/Ribbon/geometry_display_part.svg"},
    {ObjectKind::Blank,     QT_TRANSLATE_NOOP("Zorvane::Workbench::ObjectKind", "Blanks"),     ":/Icons/Ribbon/objects_blank.svg"},
    {ObjectKind::Operation, QT_TRANSLATE_NOOP("Zorvane::Workbench::ObjectKind", "Operations"), ":/workbench/operation.svg"},
    {ObjectKind::Tool,      QT_TRANSLATE_NOOP("Zorvane::Workbench::ObjectKind", "Tools"),      ":/workbench/tool.svg"},
    {ObjectKind::Material,  QT_TRANSLATE_NOOP("Zorvane::Workbench::ObjectKind", "Materials"),  ":/workbench/material.svg"},
    {ObjectKind::File,      QT_TRANSLATE_NOOP("Zorvane::Workbench::ObjectKind", "Files"),      ":/workbench/file.svg"},
}};
// clang-format on

const KindRow& rowOf(ObjectKind kind)
{
    return s_kinds[std::size_t(kind)];
}

} // namespace

ToolSide toolSideFromWord(const QString& word)
{
    for (const char* const upper : {"die", "pad", "steel"})
        if (word == QLatin1String(upper))
            return ToolSide::Upper;
    for (const char* const lower : {"punch", "binder", "post"})
        if (word == QLatin1String(lower))
            return ToolSide::Lower;
    return ToolSide::Unknown;
}

QString pluralText(ObjectKind kind)
{
    return QCoreApplication::translate("Zorvane::Workbench::ObjectKind", rowOf(kind).plural);
}

QString iconPath(ObjectKind kind)
{
    return QString::fromLatin1(rowOf(kind).icon);
}

} // namespace Zorvane::Workbench
