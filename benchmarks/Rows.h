// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_ROWS_H
#define ZRXML_BENCHMARKS_ROWS_H

#include "benchmarks/Sample.h"

#include <cstddef>
#include <string>
#include <vector>

/// The documents that are measured; each is one round of its own in memory.
enum class DocumentKind { Small, Standard, Indented, Large, LargeIndented };
constexpr std::size_t documentKinds = 5;

enum class Task {
    Floor, ///< the XML parser alone over the document as XML, whatever the form
    Tree,
    Read,
    Write,
    YardstickRead, ///< another library on the same text
    YardstickWrite
};

/// What is measured, and what was found.
struct Row {
    const char* name;
    DocumentKind document;
    Task task;
    Form form;

    double bestSeconds = 0;
    std::size_t blocks = 0;
    std::size_t peakBytes = 0;
};

/// All rows, in the order of the table; the floor of each document comes before its other rows.
std::vector<Row> AllRows();
/// Runs what the row measures once.
void RunRow(const Row& row, Sample& sample);
/// Makes everything that running the row needs beforehand.
void PrepareRow(const Row& row, Sample& sample);

#endif
