// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_REPORT_H
#define ZRXML_BENCHMARKS_REPORT_H

#include "benchmarks/Measurement.h"

/// The table for people.
void PrintTable(const RowFigures& figures);
/// Sizes of the standard document in all forms, plain and compressed.
void PrintSizes(const Effort& effort);
/// The lines for programs, "x NAME VALUE": row by row the time over that of the floor, and "times-1MB NAME VALUE" for
/// the rows of the large document.
void PrintLines(const RowFigures& figures, const std::vector<NamedFigure>& others);

#endif
