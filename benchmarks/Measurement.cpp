// SPDX-License-Identifier: MIT
#include "benchmarks/Measurement.h"

#include "benchmarks/CpuClock.h"
#include "benchmarks/ExpatFloor.h"
#include "benchmarks/MemoryMeter.h"

namespace {

constexpr unsigned ordersPerMegabyte = 1000;

/// Each row is measured in one go so that its data is in the caches as far as it fits, but several times over, because
/// the machine may be busy for a while.
constexpr unsigned passes = 3;

/// The rows of one document, measured in turns.
class Round {
public:
    Round(DocumentKind kind, const Effort& effort, DocumentFigures& figures)
        : m_figures(figures)
        , m_sample(OrdersOf(effort, kind), IsIndented(kind))
        , m_runs(kind == DocumentKind::Small ? effort.smallRuns : 1)
        , m_repetitions(kind == DocumentKind::Large || kind == DocumentKind::LargeIndented ? effort.largeRepetitions
                                                                                           : effort.standardRepetitions)
    {
        const PurchaseOrders::Document& document = m_sample.GetDocument();
        m_figures.counts = document;
        m_figures.counts.bytes.clear();
        m_figures.bytes = document.bytes.size();
    }

    void Measure(std::vector<Row*>& rows)
    {
        for (Row* row : rows) {
            Meter(*row);
        }
        for (unsigned pass = 0; pass < passes; ++pass) {
            for (Row* row : rows) {
                for (unsigned i = 0; i < m_repetitions; ++i) {
                    MeasureOnce(*row);
                }
            }
        }
        for (Row* row : rows) {
            if (row->task == Task::Floor) {
                row->bestSeconds = m_figures.floorSeconds;
            }
        }
    }

private:
    void Meter(Row& row)
    {
        PrepareRow(row, m_sample);
        const MemoryMeter meter;
        RunRow(row, m_sample);
        row.blocks = meter.GetBlocks();
        row.peakBytes = meter.GetPeakBytes();
    }

    /// The floor comes right before, so that a slow moment of the machine falls on both.
    void MeasureOnce(Row& row)
    {
        const std::string& bytes = m_sample.GetDocument().bytes;
        KeepBest(m_figures.floorSeconds, TimeRuns([&] { ParseOnly(bytes); }));
        if (row.task != Task::Floor) {
            PrepareYardstick(row);
            KeepBest(row.bestSeconds, TimeRuns([&] { RunRow(row, m_sample); }));
        }
    }

    /// The tree of the yardstick belongs to the document that was parsed last.
    void PrepareYardstick(const Row& row)
    {
        if (row.task == Task::YardstickWrite) {
            PrepareRow(row, m_sample);
        }
    }

    template <class Action> double TimeRuns(const Action& action) const
    {
        const double seconds = SecondsOf([&] {
            for (unsigned i = 0; i < m_runs; ++i) {
                action();
            }
        });
        return seconds / m_runs;
    }

    DocumentFigures& m_figures;
    Sample m_sample;
    unsigned m_runs;
    unsigned m_repetitions;
};

} // namespace

Effort FullEffort()
{
    return {ordersPerMegabyte, 32 * ordersPerMegabyte, 15, 2, 200, {1000, 4000, 16000, 64000, 256000}, 1, 2, 0.1};
}

Effort QuickEffort()
{
    return {ordersPerMegabyte, 32 * ordersPerMegabyte, 5, 1, 100, {}, 8, 2, 0.02};
}

Effort SmokeEffort()
{
    return {4, 8, 1, 1, 1, {2, 4}, 2000, 1, 0};
}

unsigned OrdersOf(const Effort& effort, DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::Small:
        return 1;
    case DocumentKind::Large:
    case DocumentKind::LargeIndented:
        return effort.largeOrders;
    default:
        return effort.standardOrders;
    }
}

bool IsIndented(DocumentKind kind)
{
    return kind == DocumentKind::Indented || kind == DocumentKind::LargeIndented;
}

RowFigures MeasureRows(const Effort& effort, const std::regex& filter)
{
    RowFigures figures;
    for (const Row& row : AllRows()) {
        if (std::regex_search(row.name, filter)) {
            figures.rows.push_back(row);
        }
    }
    for (std::size_t kind = 0; kind < documentKinds; ++kind) {
        std::vector<Row*> rows;
        for (Row& row : figures.rows) {
            if (row.document == static_cast<DocumentKind>(kind)) {
                rows.push_back(&row);
            }
        }
        if (!rows.empty()) {
            Round(static_cast<DocumentKind>(kind), effort, figures.documents[kind]).Measure(rows);
        }
    }
    return figures;
}
