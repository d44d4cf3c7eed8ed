#pragma once

#include "Host/Identifiers/GUIdentifier.h"
#include "TreeModel/IdsOfModelProviderExtractor.h"
#include "TreeModel/MergedModelProvider.h"
#include "TreeModel/ModelItemFilterInterface.h"
#include "Workbench/Tree/DesignSectionProvider.h"

#include <QtCore/QString>

#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace Zorvane::Workbench {

/**
 * The chain of model providers over a session: for each design its lists, with what passes the
 * filter, each below a row with its count, all below a row of the design; then the mesh files
 * opened by themselves. The session must outlive it.
 */
class DesignPipeline
{
public:
    using Filter = GenericTreeViewModelHandling::ModelItemFilterInterface;

    /** `changed` is called, synchronously and possibly often, when the model is another one. */
    DesignPipeline(const DesignSession& session, std::shared_ptr<Filter> filter,
                   std::function<void()> changed);

    std::shared_ptr<GenericTreeViewModelHandling::ModelRoot> provideModel();
    /** How many objects the model provided last shows; an object in two places counts once. */
    int shownCount() const;
    int shownCount(DesignSection section) const;
    /** The text of a row above a list in the model provided last, its count included. */
    QString groupName(const IDCombiner& id) const;

private:
    using Provider = GenericTreeViewModelHandling::ModelProviderInterface;
    using Extractor = GenericTreeViewModelHandling::IdsOfModelProviderExtractor;
    using Head = std::pair<GUIdentifier, QString>;

    using Items = std::vector<std::shared_ptr<GenericTreeViewModelHandling::ModelItem>>;

    std::vector<Head> headsNow() const;
    void noteGroupNames(const Items& items);
    void compose();
    std::shared_ptr<Provider> designProvider(const Head& design);
    std::shared_ptr<Provider> sectionProvider(const GUIdentifier& designId, DesignSection section);

    const DesignSession& m_session;
    std::shared_ptr<Filter> m_filter;
    std::function<void()> m_changed;
    /** What the chain was composed for: static parents keep their names. */
    std::vector<Head> m_heads;
    std::vector<std::pair<DesignSection, std::shared_ptr<Extractor>>> m_extractors;
    std::shared_ptr<GenericTreeViewModelHandling::MergedModelProvider> m_top;
    std::map<IDCombiner, QString> m_groupNames;
};

} // namespace Zorvane::Workbench
