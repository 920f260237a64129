// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_MEASUREMENT_H
#define ZRXML_BENCHMARKS_MEASUREMENT_H

#include "benchmarks/Rows.h"

#include <array>
#include <regex>
#include <string>
#include <vector>

/// How large and how often: full, quick or, in the tests, as little as runs every line once.
struct Effort {
    unsigned standardOrders;
    unsigned largeOrders;
    unsigned standardRepetitions;       ///< in each of several passes
    unsigned largeRepetitions;          ///< as well
    unsigned smallRuns;                 ///< of a small document, timed together
    std::vector<unsigned> growthOrders; ///< empty to leave the growth out
    unsigned shapeDivisor;              ///< of the sizes of the shapes
    unsigned shapePasses;
    double shapeSeconds; ///< least time for one size in one pass
};

Effort FullEffort();
Effort QuickEffort();
Effort SmokeEffort();

/// What a document consists of, and the parser's best time over it.
struct DocumentFigures {
    PurchaseOrders::Document counts; // without the bytes
    std::size_t bytes = 0;
    double floorSeconds = 0;
};

struct RowFigures {
    std::vector<Row> rows; // those that were measured
    std::array<DocumentFigures, documentKinds> documents;
};

/// One sized result without a floor: the exponent of a growth, the ratio of a doubling.
struct NamedFigure {
    std::string name;
    double value;
};

unsigned OrdersOf(const Effort& effort, DocumentKind kind);
bool IsIndented(DocumentKind kind);

/// Measures the rows whose names match, each repetition right after the floor of its own document. Before a document is
/// measured, every form of it is proven to give the same objects.
RowFigures MeasureRows(const Effort& effort, const std::regex& filter);
/// Exponents of the time over the size from reading and writing documents of growing size, one process per size.
std::vector<NamedFigure> MeasureGrowth(const Effort& effort, const std::regex& filter);
/// Worst ratio of the times when the size doubles, in shapes other than the purchase orders.
std::vector<NamedFigure> MeasureShapes(const Effort& effort, const std::regex& filter);

#endif
