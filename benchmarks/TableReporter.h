// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_TABLEREPORTER_H
#define ZRXML_BENCHMARKS_TABLEREPORTER_H

#include "benchmarks/Sample.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

enum class Task { Floor, Tree, Read, Write };

/// What is measured, and what was found.
struct Row {
    const char* name;
    Task task;
    Sample* sample;
    int repetitions;
    double minimumSeconds;

    double bestSeconds = 0;
    std::size_t blocks = 0;
    std::size_t peakBytes = 0;
    bool metered = false;
};

/// Keeps the best repetition of each row and prints one table at the end, every row beside the floor of its own
/// document.
class TableReporter : public benchmark::BenchmarkReporter {
public:
    explicit TableReporter(std::vector<Row>& rows)
        : m_rows(rows)
    {
    }

    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    void PrintDocument(const Row& row);
    void PrintRow(const Row& row);
    double FloorOf(const Row& row) const;

    std::vector<Row>& m_rows;
};

#endif
