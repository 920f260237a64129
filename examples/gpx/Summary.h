// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_SUMMARY_H
#define EXAMPLES_GPX_SUMMARY_H

#include "classes/Gpx.h"

#include <string>

namespace Demo {

/// What a GPX document holds, in lines of plain text: counts, times, heights and length of its tracks.
std::wstring Summarise(const Gpx::CGpx& gpx);

} // namespace Demo

#endif
