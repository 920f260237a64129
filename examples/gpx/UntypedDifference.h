// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_UNTYPEDDIFFERENCE_H
#define EXAMPLES_GPX_UNTYPEDDIFFERENCE_H

#include "ZrXmlLib16/ElementCol.h"

#include <string>

namespace Demo {

/// Compares two lists of untyped elements with everything below them: names, namespaces, attributes in any order, text
/// and children.
/// @return the path of the first difference below the list, such as /\*[1]/\*[2]/@unit; "/\*" when one list is longer;
/// empty when they are equal.
std::wstring FindUntypedDifference(const ZrXmlLib16::CElementCol& left, const ZrXmlLib16::CElementCol& right);

} // namespace Demo

#endif
