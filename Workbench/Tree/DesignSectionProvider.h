#pragma once

#include "Host/Identifiers/GUIdentifier.h"
#include "Host/Signals/Signal.h"
#include "TreeModel/ModelItemFilterInterface.h"
#include "TreeModel/ModelProviderInterface.h"

#include <QtCore/QObject>

#include <functional>
#include <memory>

namespace Zorvane::Workbench {

class DesignSession;

/** A list of one design, or the mesh files opened by themselves. */
enum class DesignSection
{
    /** The blank first. */
    Parts,
    /** Each with its tools below. */
    Operations,
    Materials,
    Files,
    LooseParts
};

/**
 * Leaf of the pipeline: gives one list of a session as model items, as far as a filter accepts
 * them. An operation stays while one of its tools does. Tells when the session or the filter has
 * changed. The session must outlive it.
 */
class DesignSectionProvider : public GenericTreeViewModelHandling::ModelProviderInterface
{
public:
    using Filter = GenericTreeViewModelHandling::ModelItemFilterInterface;

    /** The design's id is of no meaning to loose parts. */
    DesignSectionProvider(const DesignSession& session, const GUIdentifier& designId,
                          DesignSection section, std::shared_ptr<Filter> filter);
    DesignSectionProvider(const DesignSectionProvider&) = delete;
    DesignSectionProvider& operator=(const DesignSectionProvider&) = delete;

    std::shared_ptr<GenericTreeViewModelHandling::ModelRoot> provideModel() override;
    void registerUpdateCallback(std::function<void()> callback) override;

private:
    using Items = std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>;

    template <typename Object>
    void addAccepted(Items& items, const Object& object) const;
    Items acceptedItems() const;
    Items acceptedOperations() const;
    void tellChanged() const;

    const DesignSession& m_session;
    GUIdentifier m_designId;
    DesignSection m_section;
    std::shared_ptr<Filter> m_filter;
    std::function<void()> m_updateCallback;
    Signals::ScopedConnection m_filterChanged;
    /** Ends the connection to the session. */
    QObject m_context;
};

} // namespace Zorvane::Workbench
