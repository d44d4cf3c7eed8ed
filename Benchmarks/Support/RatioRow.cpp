#include "Benchmarks/Support/RatioRow.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace Zorvane::Benchmarks {

namespace {

struct Row
{
    std::string name;
    std::string unit;
    std::function<double()> value;
    std::function<double()> peer;
    std::function<bool()> measure;
};

std::vector<Row>& rows()
{
    static std::vector<Row> s_rows;
    return s_rows;
}

/** Keeps each side's best repetition; Google Benchmark itself offers means and medians only. */
class BestTime : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            // A side that skipped with an error has iterations but no time.
            if (run.run_type != Run::RT_Iteration || run.cpu_accumulated_time <= 0.0)
                continue;
            const double time = run.GetAdjustedCPUTime();
            const auto place = m_best.emplace(run.benchmark_name(), time).first;
            place->second = std::min(place->second, time);
        }
    }
    std::optional<double> of(const std::string& side) const
    {
        for (const auto& [name, time] : m_best) {
            if (name == side || name.compare(0, side.size() + 1, side + '/') == 0)
                return time;
        }
        return std::nullopt;
    }

private:
    std::map<std::string, double> m_best;
};

struct Times
{
    double ours = 0.0;
    double peer = 0.0;
};

/** As an extended POSIX expression, which is what Google Benchmark selects by. */
std::string escaped(const std::string& name)
{
    std::string expression;
    for (const char character : name) {
        if (std::string_view(".[]{}()*+?|^$\\").find(character) != std::string_view::npos)
            expression += '\\';
        expression += character;
    }
    return expression;
}

/** Runs both sides of a row, and nothing else, in one turn of Google Benchmark. */
bool measureSides(const std::string& name, Times& times)
{
    BestTime best;
    benchmark::RunSpecifiedBenchmarks(&best, "^" + escaped(name) + "/(ours|peer)(/|$)");
    const auto ours = best.of(name + "/ours");
    const auto peer = best.of(name + "/peer");
    if (!ours || !peer)
        return false;
    times = {*ours, *peer};
    return true;
}

void printRow(const Row& row)
{
    const double value = row.value();
    const double peer = row.peer();
    const QJsonObject line{{QStringLiteral("name"), QString::fromStdString(row.name)},
                           {QStringLiteral("value"), value},
                           {QStringLiteral("peer"), peer},
                           {QStringLiteral("ratio"), value / peer},
                           {QStringLiteral("unit"), QString::fromStdString(row.unit)}};
    std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
    std::fflush(stdout);
}

void initializeEngine(int argc, char** argv)
{
    // Options that the caller gives come later and win.
    std::vector<std::string> options{argv[0], "--benchmark_enable_random_interleaving=true",
                                     "--benchmark_repetitions=9", "--benchmark_min_time=0.05"};
    options.insert(options.end(), argv + 1, argv + argc);
    std::vector<char*> arguments;
    for (std::string& option : options)
        arguments.push_back(option.data());
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
}

QRegularExpression filterOf(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (argv[i][0] != '-')
            return QRegularExpression(QString::fromLocal8Bit(argv[i]));
    }
    return {};
}

} // namespace

void addTimeRow(const std::string& name, benchmark::TimeUnit unit, Side ours, Side peer)
{
    for (const auto& [side, function] : {std::pair("/ours", ours), std::pair("/peer", peer)})
        benchmark::RegisterBenchmark((name + side).c_str(), function)->Unit(unit);

    const auto times = std::make_shared<Times>();
    rows().push_back({name, benchmark::GetTimeUnitString(unit), [times] { return times->ours; },
                      [times] { return times->peer; },
                      [name, times] { return measureSides(name, *times); }});
}

void addValueRow(const std::string& name, const std::string& unit, std::function<double()> value,
                 std::function<double()> limit)
{
    rows().push_back({name, unit, std::move(value), std::move(limit), [] { return true; }});
}

int runRows(int argc, char** argv)
{
    // Nothing is shown, so measuring needs no display either.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QRegularExpression filter = filterOf(argc, argv);
    if (!filter.isValid()) {
        std::fprintf(stderr, "The filter is no regular expression: %s\n",
                     qPrintable(filter.errorString()));
        return 2;
    }
    initializeEngine(argc, argv);

    int status = 0;
    for (const Row& row : rows()) {
        if (!filter.match(QString::fromStdString(row.name)).hasMatch())
            continue;
        if (row.measure()) {
            printRow(row);
        } else {
            std::fprintf(stderr, "%s: a side of this row failed\n", row.name.c_str());
            status = 1;
        }
    }
    return status;
}

} // namespace Zorvane::Benchmarks
