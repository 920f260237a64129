// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_MISTAKES_H
#define EXAMPLES_GPX_MISTAKES_H

#include <string>

namespace Demo {

/// Writes a point with an impossible latitude. @return what the library reports, with all causes; empty when it reports
/// nothing.
std::string WriteImpossibleLatitude();

/// Reads a point with a misspelt element. @return as above.
std::string ReadMisspeltElement();

} // namespace Demo

#endif
