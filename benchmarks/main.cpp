// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Version.h"
#include "ZrXmlLib16/ZrException.h"
#include "benchmarks/Report.h"

#include <cstdio>
#include <malloc.h>
#include <stdexcept>

/// The one run that is counted: a name by which the counting tool knows it.
extern "C" __attribute__((noinline)) void zrxml_counted_run(const Row& row, Sample& sample)
{
    RunRow(row, sample);
}

namespace {

struct Options {
    Effort effort = FullEffort();
    std::string filter;
    std::string onceRow;
    bool sizes = true;
    bool keepsFreedMemory = true;
};

constexpr char usage[] = "usage: zrxml_bench [--quick | --smoke] [--filter REGEX] [--plain-malloc] | --once ROW";

/// The allocator gives large amounts of memory back to the system when they are freed, and maps large blocks one by
/// one: then the same document costs more from some size on, only because its pages come anew every time. A program
/// that reads many of them can have it keep the memory, and so do the measurements.
void KeepFreedMemory()
{
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
}

Options ParseOptions(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const bool hasValue = i + 1 < argc;
        if (argument == "--quick") {
            options.effort = QuickEffort();
        } else if (argument == "--smoke") {
            options.effort = SmokeEffort();
        } else if (argument == "--filter" && hasValue) {
            options.filter = argv[++i];
            options.sizes = false;
        } else if (argument == "--plain-malloc") {
            options.keepsFreedMemory = false;
        } else if (argument == "--once" && hasValue) {
            options.onceRow = argv[++i];
        } else {
            throw std::runtime_error(usage);
        }
    }
    return options;
}

/// Runs one row twice without measuring it: what is made once per process is there when the counted run begins.
void RunOnce(const std::string& name)
{
    for (const Row& row : AllRows()) {
        if (name == row.name) {
            Sample sample(OrdersOf(FullEffort(), row.document), IsIndented(row.document));
            PrepareRow(row, sample);
            RunRow(row, sample);
            zrxml_counted_run(row, sample);
            return;
        }
    }
    throw std::runtime_error("there is no row " + name);
}

void RunAll(const Options& options)
{
    const std::regex filter(options.filter);
    // First, while the heap is small: each size is measured in a copy of this process.
    std::vector<NamedFigure> others = MeasureGrowth(options.effort, filter);
    const RowFigures figures = MeasureRows(options.effort, filter);
    const std::vector<NamedFigure> shapes = MeasureShapes(options.effort, filter);
    others.insert(others.end(), shapes.begin(), shapes.end());
    std::printf("\n");
    PrintTable(figures);
    if (options.sizes) {
        PrintSizes(options.effort);
    }
    PrintLines(figures, others);
}

void Run(int argc, char** argv)
{
    ZrXmlLib16::Register(16, 1, "", "", "");
    const Options options = ParseOptions(argc, argv);
    if (options.keepsFreedMemory) {
        KeepFreedMemory();
    }
    if (!options.onceRow.empty()) {
        RunOnce(options.onceRow);
    } else {
        RunAll(options);
    }
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
