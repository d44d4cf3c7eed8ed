#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace Zorvane::Benchmarks {

/** A Google Benchmark function: prepares, then works in `for (auto _ : state)`. */
using Side = std::function<void(benchmark::State&)>;

/**
 * Adds a row that compares the CPU time per iteration of this library (`ours`) with that of
 * `peer`, in `unit`. Both sides are repeated alternately in one run, in random order, and each
 * counts with its best repetition, so that a busy machine disturbs the ratio little. Below 1
 * this library is faster.
 *
 * `name` is "subject/what", such as "tree/append". A side that ends with `SkipWithError` fails the
 * program, after the other rows.
 */
void addTimeRow(const std::string& name, benchmark::TimeUnit unit, Side ours, Side peer);

/**
 * Adds a row for a quantity that is not a time, such as bytes a row or signals a change: `value`
 * is asked once and stands against `limit`, the most that we accept of it or what a peer needs.
 */
void addValueRow(const std::string& name, const std::string& unit, std::function<double()> value,
                 std::function<double()> limit);

/**
 * Measures the rows added and prints each as one line of JSON on the standard output: an object
 * with name, value, peer, ratio, unit. Arguments: a regular expression that a row's name must
 * contain, and Google Benchmark's own options. Returns the status to end the program with.
 */
int runRows(int argc, char** argv);

} // namespace Zorvane::Benchmarks
