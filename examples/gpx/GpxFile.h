// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_GPXFILE_H
#define EXAMPLES_GPX_GPXFILE_H

#include "ZrXmlLib16/SmartPtr.h"
#include "classes/Gpx.h"

#include <string>

namespace Demo {

/// What reading or writing a file cost.
struct Cost {
    double seconds;
    unsigned long bytes; // of the file
};

struct ReadResult {
    ZrXmlLib16::CSmartPtr<Gpx::CGpx> gpx;
    Cost cost;
    /// Why the file could not be read to the letter; empty when it could. What the classes do not know was then
    /// ignored.
    std::wstring deviation;
    /// Number of `extensions` elements, for which there are no classes.
    int extensions;
};

/// Reads a GPX 1.1 file, compressed or not.
/// @throws CZrException when the file cannot be read, is not XML or not GPX 1.1, or breaks a rule other than that of
/// unknown elements and attributes.
ReadResult ReadGpxFile(const std::wstring& fileName);

/// Writes a GPX file in UTF-8.
/// @throws CZrException when the objects break a rule of the schema, or the file cannot be written.
Cost WriteGpxFile(const Gpx::CGpx& gpx, const std::wstring& fileName);

} // namespace Demo

#endif
