// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_GPXFILE_H
#define EXAMPLES_GPX_GPXFILE_H

#include "ZrXmlLib16/SmartPtr.h"
#include "classes/Gpx.h"

#include <map>
#include <string>

namespace Demo {

/// Namespaces by the prefixes that a document binds to them.
using Prefixes = std::map<std::wstring, std::wstring>;

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
    std::string deviation;
    /// Where the document binds a prefix several times, the last one counts.
    Prefixes prefixes;
};

/// Reads a GPX 1.1 file, compressed or not.
/// @throws CZrException when the file cannot be read, is not XML or not GPX 1.1, or breaks a rule other than that of
/// unknown elements and attributes.
ReadResult ReadGpxFile(const std::wstring& fileName);

/// Sets up a context that declares what the document uses.
/// @param prefixes for the namespaces of the extensions; those that are not in it get invented ones.
void PrepareToWrite(const Gpx::CGpx& gpx, const Prefixes& prefixes, ZrXmlLib16::CSerializationContext& context);

/// Writes a GPX file in UTF-8.
/// @param prefixes as for PrepareToWrite.
/// @throws CZrException when the objects break a rule of the schema, or the file cannot be written.
Cost WriteGpxFile(const Gpx::CGpx& gpx, const Prefixes& prefixes, const std::wstring& fileName);

} // namespace Demo

#endif
