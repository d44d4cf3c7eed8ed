#pragma once

#include <QtCore/QString>

#include <array>

namespace Zorvane::Workbench {

/** What a row of the design tree stands for. */
enum class ObjectKind
{
    Design,
    Part,
    Blank,
    Operation,
    Tool,
    Material,
    File
};

/** The kinds that a user can hide; designs are always there to hold the others. */
constexpr std::array<ObjectKind, 6> s_filterableKinds{ObjectKind::Part,      ObjectKind::Blank,
                                                      ObjectKind::Operation, ObjectKind::Tool,
                                                      ObjectKind::Material,  ObjectKind::File};

/** On which side of the sheet a tool works. */
enum class ToolSide
{
    Upper,
    Lower,
    /** The design doesn't tell; such tools are always shown. */
    Unknown
};

/** By the word of the design file, such as "die" or "punch". */
ToolSide toolSideFromWord(const QString& word);

/** Such as "Parts", translated. */
QString pluralText(ObjectKind kind);
/** Path of the kind's picture in the resources. */
QString iconPath(ObjectKind kind);

} // namespace Zorvane::Workbench
