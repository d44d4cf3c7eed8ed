#pragma once

#include "Host/HostExport.h"
#include "Host/Widgets/ZVTreeViewItem.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Zorvane {

class ZVTreeViewModel;
class ZVTreeViewModelPrivate;

/** Texts and child lists of a model as they shall be. */
struct ZVTreeViewPlan
{
    /** Stands in `List::rest` for the next one of `List::created`. */
    static constexpr int Created = -1;

    struct Text
    {
        ZVTreeViewItem* row;
        /** In UTF-8; has to live until the plan has been applied. */
        const std::string* text;
    };
    struct List
    {
        ZVTreeViewItem* parent;
        /** So many rows at the front stay as they are. */
        int kept;
        /**
         * The rows behind those, by the positions that they have now, each at most once, or
         * `Created`. A position that is left out means a row that leaves and is deleted.
         */
        std::vector<int> rest;
        std::vector<std::unique_ptr<ZVTreeViewItem>> created;
    };

    std::vector<Text> texts;
    /** No list below a row that leaves or is new. */
    std::vector<List> lists;
};

/**
 * One refresh of a model's rows, for as long as the object lives: texts and lists are arranged by
 * one plan, and the values that anyone writes are announced together, one range a parent. When it
 * ends, what has been put off is done.
 *
 * Meanwhile the model's structure is locked: inserting and taking rows is refused with a warning,
 * so slots find the tree as Qt promises at every signal, and rows handed to a data provider live.
 * Slots may write values; these are announced later in the same refresh. A slot that throws is
 * reported as a warning, and views start over with a reset.
 *
 * Refreshes may be nested: the outermost one counts.
 *
 * Not supported, and asserted in debug builds: a null model; deleting the model, or a row of it,
 * while a refresh runs.
 */
class ZORVANE_HOST_EXPORT ZVTreeViewRefresh
{
public:
    /** False for a host whose rows have the plain operations only; none of the below is called. */
    static constexpr bool appliesPlans = true;

    explicit ZVTreeViewRefresh(ZVTreeViewModel* model);
    ZVTreeViewRefresh(const ZVTreeViewRefresh&) = delete;
    ZVTreeViewRefresh& operator=(const ZVTreeViewRefresh&) = delete;
    ~ZVTreeViewRefresh();

    /**
     * Writes and announces the texts, then brings the lists in order. Emits what
     * `ZVTreeViewModel::setExact` describes. If a row's `setData` throws, no list has changed.
     * The second plan of one refresh may be applied when the first one is done.
     */
    void apply(ZVTreeViewPlan plan);

    static bool isRunning(const ZVTreeViewModel* model);
    /** Calls the task when the running refresh has ended; what it throws is a warning. */
    static void whenDone(ZVTreeViewModel* model, std::function<void()> task);

private:
    ZVTreeViewModelPrivate& m_model;
};

} // namespace Zorvane
