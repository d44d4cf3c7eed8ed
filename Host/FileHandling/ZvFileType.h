#pragma once

#include "Host/FileHandling/FileName.h"
#include "Host/HostExport.h"

#include <string>

namespace Zorvane {

/**
 * The types of files that the suite knows. The numbers cross library boundaries and are stored;
 * they never change, and no gap is ever filled with another meaning.
 */
enum class ZvFileType : int
{
    Design = 0,
    Optimization = 1,
    SimulationR3 = 2,
    General = 3,
    Nastran = 4,
    IgesShort = 5,
    Iges = 6,
    Vda = 7,
    StlAscii = 8,
    Restart = 9,
    Vantrel = 10,
    Text = 11,
    SolverExchange = 12, /**< Written by solvers for each other; never offered to the user. */
    Guideline = 13,
    MaterialAscii = 14,
    MaterialBinary = 15,
    ToolWithTemperatures = 16,
    Profile = 17,
    HemmingRollerGeometry = 18,
    Assembly = 19,
    Lubrication = 20,
    Frictor = 21,
    Model = 22,
    CatiaV5Part = 23,
    CatiaV5Product = 24,
    CatiaV5Representation = 25,
    CatiaV4Model = 26,
    CatiaV4Export = 27,
    CatiaV4Session = 28,
    Nx = 29,
    IdeasUniversal = 30,
    IdeasArchive = 31,
    StepShort = 32,
    Step = 33,
    ProE = 34,
    Jt = 35,
    SolidWorksPart = 36,
    SolidWorksAssembly = 37,
    ParasolidAscii = 38,
    ParasolidBinary = 39,
    Visi = 40,
    VeskelDie = 41,
    SolverLog = 42, /**< Written by solvers for support; never offered to the user. */
    AssemblyPackage = 43,
    Ormitra = 44,
    Tandrel = 45,
    Brakwell = 46,
    Json = 47,
    PressElasticity = 48,
    StlBinary = 49,
    Csv = 50,
    Unknown = 51
};

/**
 * The ending of the type's files without its leading dot, spelled as its programs spell it, such
 * as "CATPart". Pro/E numbers its versions ("door.prt.3"), so its ending is "prt.*"; the unknown
 * type, and any number that is no type, gives "*".
 */
ZORVANE_HOST_EXPORT std::string getExtensionForFileType(ZvFileType type);

/**
 * The type of files with that ending, `Unknown` if there is none.
 *
 * The ending may have its leading dot; the case of letters doesn't matter. The second one is the
 * ending in front of it ("prt" in "door.prt.3"), or empty: it tells a numbered version of a file
 * from a file whose ending is a number. Both kinds of STL end alike: this gives `StlAscii`.
 */
ZORVANE_HOST_EXPORT ZvFileType getFileTypeFromEnding(const std::string& ending,
                                                     const std::string& second);

/**
 * The type by the file's ending; of an STL file that can be read, by its content. Never fails.
 */
ZORVANE_HOST_EXPORT ZvFileType getFileType(const FileName& file);

} // namespace Zorvane
