// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_EXTENSIONS_H
#define EXAMPLES_GPX_EXTENSIONS_H

#include "classes/Gpx.h"

#include <vector>

namespace Demo {

/// All extensions of a document, borrowed from it; never null.
std::vector<const Gpx::CExtensionsType*> FindExtensions(const Gpx::CGpx& gpx);

/// All elements of all extensions, at any depth, borrowed from the document.
std::vector<ZrXmlLib16::CElement*> FindUntypedElements(const Gpx::CGpx& gpx);

/// Removes the indentation from the text of untyped elements with children. It would be written behind the children,
/// so that every round trip would add more.
void RemoveIndentation(const Gpx::CGpx& gpx);

} // namespace Demo

#endif
