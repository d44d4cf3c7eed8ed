#pragma once

#include "Host/Widgets/ZVTreeViewItem.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Zorvane {

class ZVTreeViewModel;

struct ZVTreeViewPlan
{
    static constexpr int Created = -1;

    struct Text
    {
        ZVTreeViewItem* row;
        const std::string* text;
    };
    struct List
    {
        ZVTreeViewItem* parent;
        int kept;
        std::vector<int> rest;
        std::vector<std::unique_ptr<ZVTreeViewItem>> created;
    };

    std::vector<Text> texts;
    std::vector<List> lists;
};

/** Of a host that announces each operation by itself. */
class ZVTreeViewRefresh
{
public:
    static constexpr bool appliesPlans = false;

    explicit ZVTreeViewRefresh(ZVTreeViewModel*) {}
    ~ZVTreeViewRefresh() = default;

    void apply(ZVTreeViewPlan) {}
    static bool isRunning(const ZVTreeViewModel*) { return false; }
    static void whenDone(ZVTreeViewModel*, std::function<void()>) {}
};

} // namespace Zorvane
