#pragma once

#include "Host/FileHandling/FileName.h"
#include "Host/HostExport.h"

#include <memory>

namespace Zorvane {

/**
 * The folders that the suite is set up with. Ours looks at every call, in this order:
 * 1. the environment variable "ZORVANE_PATH_" + the folder's name in capitals and underscores;
 * 2. the application's setting "Paths/" + the folder's name;
 * 3. for the data folders, the sub-folder of that name in the data root, which
 *    "ZORVANE_PATH_DATA" or the setting "Paths/Data" sets;
 * 4. the system's standard locations: the user's documents, or the first existing folder
 *    "zorvane/" + name in the shared data locations, else where the user's own would be.
 *
 * An override must be an absolute path; a relative one would name another folder at every start
 * and is ignored. Nothing is created, and the folder need not exist.
 *
 * A suite that keeps its folders elsewhere derives from it and registers that.
 */
class ZORVANE_HOST_EXPORT PathConfiguration
{
public:
    /** In settings, a folder has the name of its value. All but the documents are data folders. */
    enum class Folder
    {
        MyDocuments,
        Presses,
        Materials,
        Lubrication,
        Standards,
        DesignTemplates,
        Drawbeads,
        Formability,
        Addendum,
        HemmingTools,
        Guidelines,
        Connectors
    };

    PathConfiguration();
    PathConfiguration(const PathConfiguration&);
    PathConfiguration& operator=(const PathConfiguration&);
    virtual ~PathConfiguration();

    /** Returns the instance before, which it replaces. Null stands for our own. */
    static std::shared_ptr<PathConfiguration>
    registerInstance(std::shared_ptr<PathConfiguration> instance);

    /** What the getters below return. */
    virtual FileName getFolder(Folder folder) const;

    // What the registered instance says.
    static FileName getZvPathMyDocuments();
    static FileName getZvPathPressesFiles();
    static FileName getZvPathMaterialFiles();
    static FileName getZvPathLubricationFiles();
    static FileName getZvPathStandardFiles();
    static FileName getZvPathTemplateDesignFiles();
    static FileName getZvPathDrawbeadFiles();
    static FileName getZvPathFormabilityFiles();
    static FileName getZvPathAddendumFiles();
    static FileName getZvPathHemmingToolFiles();
    static FileName getZvPathGuidelineFiles();
    static FileName getZvPathConnectorFiles();
};

} // namespace Zorvane
