// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Version.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/ZrException.h"
#include "benchmarks/AllocationMeter.h"
#include "benchmarks/ExpatFloor.h"
#include "benchmarks/TableReporter.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <stdexcept>

namespace {

void Perform(Task task, Sample& sample)
{
    switch (task) {
    case Task::Floor:
        ParseOnly(sample.GetDocument().bytes);
        break;
    case Task::Tree: {
        const std::string& bytes = sample.GetDocument().bytes;
        ZrXmlLib16::CXmlDocument document;
        document.LoadXmlStream(BytesOf(bytes), bytes.size());
        break;
    }
    case Task::Read: {
        PurchaseOrders::OrderList objects;
        sample.Read(objects);
        break;
    }
    case Task::Write:
        benchmark::DoNotOptimize(sample.Write(sample.GetObjects()).GetLength());
        break;
    }
}

/// What a row needs before it is measured; the first reading of each document also proves that it is written back
/// unchanged.
void Prepare(Row& row)
{
    if (row.task == Task::Read || row.task == Task::Write) {
        row.sample->GetObjects();
    } else {
        row.sample->GetDocument();
    }
    if (!row.metered) {
        AllocationMeter meter;
        Perform(row.task, *row.sample);
        row.blocks = meter.GetBlocks();
        row.peakBytes = meter.GetPeakBytes();
        row.metered = true;
    }
}

void Measure(benchmark::State& state, Row& row)
{
    Prepare(row);
    for (auto _ : state) {
        Perform(row.task, *row.sample);
    }
}

void RunRows(std::vector<Row>& rows, std::vector<char*> arguments)
{
    // Interleaving spreads a slow moment of the machine over all rows, the floors included.
    char interleave[] = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, interleave);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        throw std::runtime_error("usage: zrxml_bench [--quick] [--benchmark_...]");
    }
    for (Row& row : rows) {
        benchmark::RegisterBenchmark(row.name, [&row](benchmark::State& state) { Measure(state, row); })
            ->Repetitions(row.repetitions)
            ->MinTime(row.minimumSeconds);
    }
    TableReporter reporter(rows);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
}

void Run(int argc, char** argv)
{
    ZrXmlLib16::Register(16, 1, "", "", "");
    std::vector<char*> arguments(argv, argv + argc);
    const auto quickArgument = std::find_if(
        arguments.begin(), arguments.end(), [](const char* argument) { return std::strcmp(argument, "--quick") == 0; });
    const bool quick = quickArgument != arguments.end();
    if (quick) {
        arguments.erase(quickArgument);
    }

    const int many = quick ? 5 : 30;
    const int few = quick ? 2 : 7;
    const double shortTime = quick ? 0.02 : 0.1;
    const double oneIteration = 1e-9;
    Sample standard(1000, false);
    Sample indented(1000, true);
    Sample large(32000, false);
    Sample small(1, false);
    std::vector<Row> rows = {
        {"xml-floor", Task::Floor, &standard, many, shortTime},
        {"xml-floor-indented", Task::Floor, &indented, many, shortTime},
        {"xml-floor/32", Task::Floor, &large, few, oneIteration},
        {"xml-floor-small", Task::Floor, &small, many, shortTime},
        {"xml-tree", Task::Tree, &standard, many, shortTime},
        {"xml-read", Task::Read, &standard, many, shortTime},
        {"xml-read-indented", Task::Read, &indented, many, shortTime},
        {"xml-read/32", Task::Read, &large, few, oneIteration},
        {"xml-read-small", Task::Read, &small, many, shortTime},
        {"xml-write", Task::Write, &standard, many, shortTime},
        {"xml-write/32", Task::Write, &large, few, oneIteration},
        {"xml-write-small", Task::Write, &small, many, shortTime},
    };
    RunRows(rows, arguments);
}

} // namespace

int main(int argc, char** argv)
{
    try {
        Run(argc, argv);
        return 0;
    } catch (const ZrXmlLib16::CZrException& failure) {
        std::fprintf(stderr, "%ls\n", failure.GetFullMessage().c_str());
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
    }
    return 1;
}
