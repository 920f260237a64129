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

/// Removes the blanks around the text of untyped elements with children. They are mostly indentation, to which every
/// round trip would add more, because the text is written behind the children.
void RemoveIndentation(const Gpx::CGpx& gpx);

} // namespace Demo

#endif
