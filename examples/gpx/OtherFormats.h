// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_OTHERFORMATS_H
#define EXAMPLES_GPX_OTHERFORMATS_H

#include "GpxFile.h"

#include <string>
#include <vector>

namespace Demo {

/// What writing objects in one format and reading them again gave.
struct RoundTrip {
    const char* format;
    unsigned long bytes;
    double writeSeconds;
    double readSeconds;
    /// Path of the first difference, empty when the objects are equal.
    std::wstring difference;
    /// Why there is nothing to compare, in one line: JSON with a quotation mark or backslash in a text cannot be read,
    /// and what does not shrink is not compressed.
    std::wstring failure;
};

/// Writes the objects in every format, in memory, and reads them again.
std::vector<RoundTrip> TryFormats(const Gpx::CGpx& gpx, const Prefixes& prefixes);

} // namespace Demo

#endif
