// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_DIFFERENCE_H
#define EXAMPLES_GPX_DIFFERENCE_H

#include "classes/GpxObject.h"

#include <string>

namespace Demo {

/// Compares two object trees, property by property and value by value.
/// @return the path of the first difference, such as /gpx/trk[1]/name; empty when the trees are equal.
std::wstring FindDifference(const Gpx::CGpxObject& left, const Gpx::CGpxObject& right);

} // namespace Demo

#endif
