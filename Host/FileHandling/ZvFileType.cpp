#include "Host/FileHandling/ZvFileType.h"

#include "Host/FileHandling/StlContent.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Zorvane {

namespace {

constexpr std::string_view s_anyVersion = ".*";
constexpr const char* s_anyEnding = "*";

struct Ending
{
    ZvFileType type;
    const char* text;
};

// clang-format off
constexpr std::array s_endings{
    Ending{ZvFileType::Design,                "zvd"},
    Ending{ZvFileType::Optimization,          "zvo"},
    Ending{ZvFileType::SimulationR3,          "zv3"},
    Ending{ZvFileType::General,               "zv"},
    Ending{ZvFileType::Nastran,               "nas"},
    Ending{ZvFileType::IgesShort,             "igs"},
    Ending{ZvFileType::Iges,                  "iges"},
    Ending{ZvFileType::Vda,                   "vda"},
    Ending{ZvFileType::StlAscii,              "stl"},
    Ending{ZvFileType::Restart,               "zvr"},
    Ending{ZvFileType::Vantrel,               "vtl"},
    Ending{ZvFileType::Text,                  "txt"},
    Ending{ZvFileType::SolverExchange,        "zvx"},
    Ending{ZvFileType::Guideline,             "zvg"},
    Ending{ZvFileType::MaterialAscii,         "mat"},
    Ending{ZvFileType::MaterialBinary,        "mtb"},
    Ending{ZvFileType::ToolWithTemperatures,  "zvt"},
    Ending{ZvFileType::Profile,               "zvp"},
    Ending{ZvFileType::HemmingRollerGeometry, "zvh"},
    Ending{ZvFileType::Assembly,              "zva"},
    Ending{ZvFileType::Lubrication,           "lub"},
    Ending{ZvFileType::Frictor,               "frc"},
    Ending{ZvFileType::Model,                 "zvm"},
    Ending{ZvFileType::CatiaV5Part,           "CATPart"},
    Ending{ZvFileType::CatiaV5Product,        "CATProduct"},
    Ending{ZvFileType::CatiaV5Representation, "cgr"},
    Ending{ZvFileType::CatiaV4Model,          "model"},
    Ending{ZvFileType::CatiaV4Export,         "exp"},
    Ending{ZvFileType::CatiaV4Session,        "session"},
    Ending{ZvFileType::Nx,                    "prt"},
    Ending{ZvFileType::IdeasUniversal,        "unv"},
    Ending{ZvFileType::IdeasArchive,          "arc"},
    Ending{ZvFileType::StepShort,             "stp"},
    Ending{ZvFileType::Step,                  "step"},
    Ending{ZvFileType::ProE,                  "prt.*"},
    Ending{ZvFileType::Jt,                    "jt"},
    Ending{ZvFileType::SolidWorksPart,        "sldprt"},
    Ending{ZvFileType::SolidWorksAssembly,    "sldasm"},
    Ending{ZvFileType::ParasolidAscii,        "x_t"},
    Ending{ZvFileType::ParasolidBinary,       "x_b"},
    Ending{ZvFileType::Visi,                  "wkf"},
    Ending{ZvFileType::VeskelDie,             "zvk"},
    Ending{ZvFileType::SolverLog,             "zvl"},
    Ending{ZvFileType::AssemblyPackage,       "zvap"},
    Ending{ZvFileType::Ormitra,               "orm"},
    Ending{ZvFileType::Tandrel,               "tdl"},
    Ending{ZvFileType::Brakwell,              "bkw"},
    Ending{ZvFileType::Json,                  "json"},
    Ending{ZvFileType::PressElasticity,       "zvpe"},
    Ending{ZvFileType::StlBinary,             "stl"},
    Ending{ZvFileType::Csv,                   "csv"},
    Ending{ZvFileType::Unknown,               s_anyEnding},
};
// clang-format on

char lower(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isSpelledAlike(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

std::string_view withoutDot(std::string_view ending)
{
    return !ending.empty() && ending.front() == '.' ? ending.substr(1) : ending;
}

bool isVersionNumber(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(),
                                        [](char letter) { return letter >= '0' && letter <= '9'; });
}

/** The type whose files have that ending and then a version number. */
ZvFileType typeOfVersioned(std::string_view ending)
{
    return getFileTypeFromEnding(std::string(ending).append(s_anyVersion), {});
}

} // namespace

std::string getExtensionForFileType(ZvFileType type)
{
    const auto found = std::find_if(s_endings.begin(), s_endings.end(),
                                    [type](const Ending& ending) { return ending.type == type; });
    return found == s_endings.end() ? s_anyEnding : found->text;
}

ZvFileType getFileTypeFromEnding(const std::string& ending, const std::string& second)
{
    const std::string_view wanted = withoutDot(ending);
    const auto found =
        std::find_if(s_endings.begin(), s_endings.end(),
                     [wanted](const Ending& known) { return isSpelledAlike(known.text, wanted); });
    if (found != s_endings.end())
        return found->type;
    return second.empty() || !isVersionNumber(wanted) ? ZvFileType::Unknown
                                                      : typeOfVersioned(withoutDot(second));
}

ZvFileType getFileType(const FileName& file)
{
    const std::string leaf = file.getLeafName();
    const std::string ending = file.getExtension();
    const FileName withoutEnding(
        leaf.substr(0, leaf.size() - std::min(leaf.size(), ending.size() + 1)));
    const ZvFileType type = getFileTypeFromEnding(ending, withoutEnding.getExtension());
    return type == ZvFileType::StlAscii && isBinaryStl(file) ? ZvFileType::StlBinary : type;
}

} // namespace Zorvane
