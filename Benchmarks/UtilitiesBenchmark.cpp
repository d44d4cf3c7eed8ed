#include "Benchmarks/Support/RatioRow.h"
#include "Host/Configuration/ColorConfiguration.h"
#include "Utilities/IdentifierToColorMap.h"
#include "Utilities/PostEventTask.h"
#include "Utilities/ReferenceIndicatorDelegate.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMetaObject>
#include <QtCore/QString>
#include <QtCore/QUuid>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QStyledItemDelegate>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

namespace Zorvane::Benchmarks {

namespace {

constexpr int s_manyIds = 100'000;
constexpr int s_fewIds = 10;
constexpr int s_tasks = 100'000;
constexpr int s_postsPerTask = 10;
constexpr int s_cells = 10'000;
constexpr int s_partColors = 24;

/** Identifiers as designs and parts have them: UUIDs, the same ones in every run. */
std::vector<std::string> uuids(int count)
{
    const QUuid space(QStringLiteral("{5d2bb5c0-0b5e-4d9a-9c1c-4f6f7b0f9a11}"));
    std::vector<std::string> ids;
    ids.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        ids.push_back(QUuid::createUuidV5(space, QString::number(i)).toString().toStdString());
    return ids;
}

/** A few of the identifiers, spread evenly: what a view shows at one time. */
std::vector<std::string> shownOf(const std::vector<std::string>& ids)
{
    std::vector<std::string> shown;
    for (std::size_t i = 0; i < s_fewIds; ++i)
        shown.push_back(ids[i * ids.size() / s_fewIds]);
    return shown;
}

template <int Count>
void lookUpShownIds(benchmark::State& state)
{
    const std::vector<std::string> ids = uuids(Count);
    IdentifierToColorMap map;
    for (const std::string& id : ids)
        map.getColorIndex(id);

    const std::vector<std::string> shown = shownOf(ids);
    for (auto _ : state) {
        for (const std::string& id : shown)
            benchmark::DoNotOptimize(map.getColor(id));
    }
}

/** What the map's rules say, done by the letter for identifiers that have their slots. */
void scanForShownIds(benchmark::State& state)
{
    const std::vector<std::string> slots = uuids(s_fewIds);
    const std::vector<std::string> shown = shownOf(slots);
    IdentifierToColorMap map;
    std::array<QColor, 8> palette;
    for (std::size_t i = 0; i < palette.size(); ++i)
        palette[i] = map.getColor(slots[i]);

    for (auto _ : state) {
        for (const std::string& id : shown) {
            const auto slot = std::find(slots.begin(), slots.end(), id) - slots.begin();
            benchmark::DoNotOptimize(palette[std::size_t(slot) % palette.size()]);
        }
    }
}

class CountingTask : public PostEventTask
{
public:
    explicit CountingTask(int& count)
        : PostEventTask(Priority::FirstQueue, false)
        , m_count(count)
    {}
    void run() override { ++m_count; }

private:
    int& m_count;
};

/** Every object that changed asks for its refresh, again with each of its changes. */
void postTasks(benchmark::State& state)
{
    int runs = 0;
    std::vector<std::unique_ptr<CountingTask>> tasks;
    for (int i = 0; i < s_tasks; ++i)
        tasks.push_back(std::make_unique<CountingTask>(runs));

    for (auto _ : state) {
        runs = 0;
        for (int round = 0; round < s_postsPerTask; ++round) {
            for (const auto& task : tasks)
                task->post();
        }
        QCoreApplication::sendPostedEvents();
        if (runs != s_tasks)
            state.SkipWithError("not every task ran once");
    }
}

void invokeQueued(benchmark::State& state)
{
    int runs = 0;
    QObject context;
    for (auto _ : state) {
        runs = 0;
        for (int i = 0; i < s_tasks * s_postsPerTask; ++i)
            QMetaObject::invokeMethod(
                &context, [&runs] { ++runs; }, Qt::QueuedConnection);
        QCoreApplication::sendPostedEvents();
        if (runs != s_tasks * s_postsPerTask)
            state.SkipWithError("not every call came");
    }
}

/** A reference column of a large design: all counts, in the colours of a few dozen parts. */
void fillReferences(QStandardItemModel& model)
{
    const auto colors = ColorConfiguration::getRegisteredInstance();
    for (int id = 0; id < s_partColors; ++id)
        colors->setColor(id, {float(id) / s_partColors, 0.5F, 0.75F});
    for (int row = 0; row < s_cells; ++row) {
        auto* const item = new QStandardItem;
        item->setData(row % 5, ReferenceIndicatorDelegate::NumberOfReferencesRole);
        for (int color = 0; color < 3; ++color)
            item->setData((row + color) % s_partColors,
                          ReferenceIndicatorDelegate::FirstColorRole + color);
        model.appendRow(item);
    }
}

/** Without texts, which both would draw alike: what is compared is the patch and nothing else. */
template <typename Delegate>
void paintCells(benchmark::State& state)
{
    QStandardItemModel model;
    fillReferences(model);
    const Delegate delegate(nullptr);
    QImage screen(800, 600, QImage::Format_ARGB32_Premultiplied);
    screen.fill(Qt::white);
    QPainter painter(&screen);
    QStyleOptionViewItem option;
    option.state = QStyle::State_Enabled | QStyle::State_Active;

    for (auto _ : state) {
        for (int row = 0; row < s_cells; ++row) {
            option.rect = QRect(0, row % 30 * 20, 40, 20);
            delegate.paint(&painter, option, model.index(row, 0));
        }
    }
}

} // namespace

} // namespace Zorvane::Benchmarks

int main(int argc, char** argv)
{
    using namespace Zorvane;
    using namespace Benchmarks;
    // At most 2.0, 1.5, and for the delegate 2.0: a view that paints shows nothing of less.
    addTimeRow("colours/100000-ids", benchmark::kNanosecond, lookUpShownIds<s_manyIds>,
               lookUpShownIds<s_fewIds>);
    addTimeRow("colours/10-ids", benchmark::kNanosecond, lookUpShownIds<s_fewIds>, scanForShownIds);
    addTimeRow("tasks/post-and-run", benchmark::kMillisecond, postTasks, invokeQueued);
    addTimeRow("delegate/paint-10000", benchmark::kMillisecond,
               paintCells<ReferenceIndicatorDelegate>, paintCells<QStyledItemDelegate>);
    return runRows(argc, argv);
}
