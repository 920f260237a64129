// SPDX-License-Identifier: MIT
#include "benchmarks/TableReporter.h"

#include <cstdio>

void TableReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.iterations == 0) {
            continue;
        }
        const double seconds = run.cpu_accumulated_time / static_cast<double>(run.iterations);
        for (Row& row : m_rows) {
            if (run.run_name.function_name == row.name && (row.bestSeconds == 0 || seconds < row.bestSeconds)) {
                row.bestSeconds = seconds;
            }
        }
    }
}

void TableReporter::Finalize()
{
    for (const Row& row : m_rows) {
        if (row.bestSeconds != 0 && row.task == Task::Floor) {
            PrintDocument(row);
        }
    }
    std::printf("\n%-22s %11s %9s %7s %14s %16s\n", "row", "us", "MB/s", "x", "alloc/element", "peak bytes/byte");
    for (const Row& row : m_rows) {
        if (row.bestSeconds != 0) {
            PrintRow(row);
        }
    }
}

void TableReporter::PrintDocument(const Row& row)
{
    const PurchaseOrders::Document& document = row.sample->GetDocument();
    std::printf("%-22s %zu bytes, %zu objects, %zu elements, %zu attributes, %zu typed values, %zu strings\n", row.name,
        document.bytes.size(), document.objects, document.elements, document.attributes, document.typedValues,
        document.strings);
}

void TableReporter::PrintRow(const Row& row)
{
    const PurchaseOrders::Document& document = row.sample->GetDocument();
    const double bytes = static_cast<double>(document.bytes.size());
    const double floor = FloorOf(row);
    std::printf("%-22s %11.1f %9.1f ", row.name, row.bestSeconds * 1e6, bytes / row.bestSeconds / 1e6);
    if (floor != 0) {
        std::printf("%7.2f ", row.bestSeconds / floor);
    } else {
        std::printf("%7s ", "-");
    }
    std::printf("%14.2f %16.1f\n", static_cast<double>(row.blocks) / static_cast<double>(document.elements),
        static_cast<double>(row.peakBytes) / bytes);
}

double TableReporter::FloorOf(const Row& row) const
{
    for (const Row& other : m_rows) {
        if (other.task == Task::Floor && other.sample == row.sample) {
            return other.bestSeconds;
        }
    }
    return 0;
}
