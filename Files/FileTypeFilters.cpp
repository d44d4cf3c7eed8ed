#include "Files/FileTypeFilters.h"

#include "Host/Translation/ArgString.h"
#include "Host/Translation/Translator.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace Zorvane {

namespace {

constexpr const char* s_context = "ZvFileName";
constexpr const char* s_unknownText = QT_TRANSLATE_NOOP("ZvFileName", "Unknown File");

struct TypeText
{
    ZvFileType type;
    const char* text;
};

// Types without a row have no name of their own.
// clang-format off
constexpr TypeText s_texts[]{
    {ZvFileType::Design,                QT_TRANSLATE_NOOP("ZvFileName", "ZV Design File")},
    {ZvFileType::Optimization,          QT_TRANSLATE_NOOP("ZvFileName", "ZV Optimization File")},
    {ZvFileType::SimulationR3,          QT_TRANSLATE_NOOP("ZvFileName", "ZV Simulation File R3.x")},
    {ZvFileType::General,               QT_TRANSLATE_NOOP("ZvFileName", "ZV File")},
    {ZvFileType::Nastran,               QT_TRANSLATE_NOOP("ZvFileName", "Nastran File")},
    {ZvFileType::IgesShort,             QT_TRANSLATE_NOOP("ZvFileName", "IGES File")},
    {ZvFileType::Iges,                  QT_TRANSLATE_NOOP("ZvFileName", "IGES File")},
    {ZvFileType::Vda,                   QT_TRANSLATE_NOOP("ZvFileName", "VDA File")},
    {ZvFileType::StlAscii,              QT_TRANSLATE_NOOP("ZvFileName", "STL File (ASCII)")},
    {ZvFileType::Restart,               QT_TRANSLATE_NOOP("ZvFileName", "ZV Restart File")},
    {ZvFileType::Vantrel,               QT_TRANSLATE_NOOP("ZvFileName", "Vantrel File")},
    {ZvFileType::Text,                  QT_TRANSLATE_NOOP("ZvFileName", "Text File")},
    {ZvFileType::Guideline,             QT_TRANSLATE_NOOP("ZvFileName", "Guideline File")},
    {ZvFileType::MaterialAscii,         QT_TRANSLATE_NOOP("ZvFileName", "Material ASCII")},
    {ZvFileType::MaterialBinary,        QT_TRANSLATE_NOOP("ZvFileName", "Material Binary")},
    {ZvFileType::ToolWithTemperatures,  QT_TRANSLATE_NOOP("ZvFileName", "Tool with Temperatures")},
    {ZvFileType::Profile,               QT_TRANSLATE_NOOP("ZvFileName", "Profile File")},
    {ZvFileType::HemmingRollerGeometry, QT_TRANSLATE_NOOP("ZvFileName", "Hemming Roller Geometry File")},
    {ZvFileType::Assembly,              QT_TRANSLATE_NOOP("ZvFileName", "ZV Assembly File")},
    {ZvFileType::Lubrication,           QT_TRANSLATE_NOOP("ZvFileName", "Lubrication File")},
    {ZvFileType::Frictor,               QT_TRANSLATE_NOOP("ZvFileName", "Frictor File")},
    {ZvFileType::Model,                 QT_TRANSLATE_NOOP("ZvFileName", "ZV-Model File")},
    {ZvFileType::CatiaV5Part,           QT_TRANSLATE_NOOP("ZvFileName", "CATIA V5 File")},
    {ZvFileType::CatiaV5Product,        QT_TRANSLATE_NOOP("ZvFileName", "CATIA V5 File")},
    {ZvFileType::CatiaV5Representation, QT_TRANSLATE_NOOP("ZvFileName", "CATIA V5 File")},
    {ZvFileType::CatiaV4Model,          QT_TRANSLATE_NOOP("ZvFileName", "CATIA V4 File")},
    {ZvFileType::CatiaV4Export,         QT_TRANSLATE_NOOP("ZvFileName", "CATIA V4 File")},
    {ZvFileType::CatiaV4Session,        QT_TRANSLATE_NOOP("ZvFileName", "CATIA V4 File")},
    {ZvFileType::Nx,                    QT_TRANSLATE_NOOP("ZvFileName", "UG / NX File")},
    {ZvFileType::IdeasUniversal,        QT_TRANSLATE_NOOP("ZvFileName", "IDEAS File")},
    {ZvFileType::IdeasArchive,          QT_TRANSLATE_NOOP("ZvFileName", "IDEAS File")},
    {ZvFileType::StepShort,             QT_TRANSLATE_NOOP("ZvFileName", "STEP File")},
    {ZvFileType::Step,                  QT_TRANSLATE_NOOP("ZvFileName", "STEP File")},
    {ZvFileType::ProE,                  QT_TRANSLATE_NOOP("ZvFileName", "PROE File")},
    {ZvFileType::Jt,                    QT_TRANSLATE_NOOP("ZvFileName", "JT File")},
    {ZvFileType::SolidWorksPart,        QT_TRANSLATE_NOOP("ZvFileName", "Solid Works File")},
    {ZvFileType::SolidWorksAssembly,    QT_TRANSLATE_NOOP("ZvFileName", "Solid Works File")},
    {ZvFileType::ParasolidAscii,        QT_TRANSLATE_NOOP("ZvFileName", "Parasolid ASCII File")},
    {ZvFileType::ParasolidBinary,       QT_TRANSLATE_NOOP("ZvFileName", "Parasolid Binary File")},
    {ZvFileType::Visi,                  QT_TRANSLATE_NOOP("ZvFileName", "VISI CAD File")},
    {ZvFileType::VeskelDie,             QT_TRANSLATE_NOOP("ZvFileName", "ZV Veskel Die File")},
    {ZvFileType::AssemblyPackage,       QT_TRANSLATE_NOOP("ZvFileName", "ZV Assembly File")},
    {ZvFileType::Ormitra,               QT_TRANSLATE_NOOP("ZvFileName", "ZV Ormitra File")},
    {ZvFileType::Tandrel,               QT_TRANSLATE_NOOP("ZvFileName", "ZV Tandrel File")},
    {ZvFileType::Brakwell,              QT_TRANSLATE_NOOP("ZvFileName", "ZV Brakwell File")},
    {ZvFileType::Json,                  QT_TRANSLATE_NOOP("ZvFileName", "JSON File")},
    {ZvFileType::PressElasticity,       QT_TRANSLATE_NOOP("ZvFileName", "ZV Press Elasticity Data")},
    {ZvFileType::StlBinary,             QT_TRANSLATE_NOOP("ZvFileName", "STL File (Binary)")},
    {ZvFileType::Csv,                   QT_TRANSLATE_NOOP("ZvFileName", "CSV File")},
};
// clang-format on

const char* sourceTextOf(ZvFileType type)
{
    const auto* found = std::find_if(std::begin(s_texts), std::end(s_texts),
                                     [type](const TypeText& row) { return row.type == type; });
    return found == std::end(s_texts) ? s_unknownText : found->text;
}

std::string patternOfType(ZvFileType type)
{
    return ArgString(std::string("*.%1")).arg(getExtensionForFileType(type));
}

std::string patternOfEnding(const std::string& ending)
{
    return "*" + ending;
}

template <typename Items, typename TextOf>
std::string join(const Items& items, const std::string& separator, TextOf textOf)
{
    std::string joined;
    const char* before = "";
    for (const auto& item : items) {
        joined.append(before).append(textOf(item));
        before = separator.c_str();
    }
    return joined;
}

template <typename Items, typename EntryOf, typename PatternOf>
std::string filterOf(const Items& items, bool withAllEntry, const std::string& allLabel,
                     EntryOf entryOf, PatternOf patternOf)
{
    const std::string entries = join(items, ";;", entryOf);
    if (!withAllEntry)
        return entries;
    const std::string label = allLabel.empty()
                                  ? Translator::translate("ZvFileName", "All Files").toStdString()
                                  : allLabel;
    return ArgString(std::string("%1 (%2);;%3"))
        .arg(label)
        .arg(join(items, " ", patternOf))
        .arg(entries);
}

} // namespace

std::string clearTextForFileType(ZvFileType type)
{
    return Translator::translate(s_context, sourceTextOf(type)).toStdString();
}

std::string getFileFilterForType(ZvFileType type)
{
    return ArgString(std::string("%1 (*.%2)"))
        .arg(clearTextForFileType(type))
        .arg(getExtensionForFileType(type));
}

std::string getFileFilterForEnding(const std::string& ending)
{
    const ZvFileType type = getFileTypeFromEnding(ending, {});
    if (type != ZvFileType::Unknown)
        return getFileFilterForType(type);
    // Any name will do: the file handling service says what of the ending is an extension.
    return ArgString(std::string("%1 (*%2)"))
        .arg(FileName("ttt" + ending).getExtension())
        .arg(ending);
}

std::string getFileFilterForTypes(const std::list<ZvFileType>& types, bool withAllEntry,
                                  const std::string& allLabel)
{
    return filterOf(types, withAllEntry, allLabel, getFileFilterForType, patternOfType);
}

std::string getFileFilterForEndings(const std::list<std::string>& endings, bool withAllEntry,
                                    const std::string& allLabel)
{
    return filterOf(endings, withAllEntry, allLabel, getFileFilterForEnding, patternOfEnding);
}

} // namespace Zorvane
