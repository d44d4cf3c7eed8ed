#pragma once

#include "Files/DefaultPathProvider.h"
#include "Host/FileHandling/FileName.h"
#include "Host/Identifiers/GUIdentifier.h"

#include <map>

namespace Zorvane {

/**
 * The provider of one open design. A scope opens where this design used it last; before that,
 * scopes of files that belong with a design (imports, exports, pictures, logs, result plots) open
 * in the folder of the design's file; all others as `DefaultPathProvider` has it. What was used
 * is remembered for the design while the application runs, and for the scope in the settings.
 */
class ZORVANE_UITOOLS_EXPORT DesignPathProvider : public DefaultPathProvider
{
public:
    DesignPathProvider(const GUIdentifier& design, const FileName& designFile);
    DesignPathProvider(const DesignPathProvider& other);
    DesignPathProvider& operator=(const DesignPathProvider& other);
    ~DesignPathProvider() override;

    /**
     * The provider of the design, made at the first call for it and kept until the process ends;
     * owned by the library. A later call binds it to the design's new file.
     */
    static DesignPathProvider* getInstance(const GUIdentifier& design, const FileName& designFile);

    /** What this design used last comes as it was given: file or folder, there or gone. */
    QString getPathFromScope(const QString& scope) override;
    void setPathToScope(const QString& path, const QString& scope) override;

private:
    bool opensNextToDesign(const QString& scope) const;

    static std::map<GUIdentifier, std::shared_ptr<DesignPathProvider>> s_instances;

    GUIdentifier m_design;
    FileName m_designFile;
    // By the design's UUID text, then by settings key.
    QHash<QString, QHash<QString, QString>> m_paths;
};

} // namespace Zorvane
