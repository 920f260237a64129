// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_SAMPLEWALK_H
#define EXAMPLES_GPX_SAMPLEWALK_H

#include <string>

namespace Demo {

/// A day's walk up an invented hill and down again as a GPX document in UTF-8: waypoints, a route, and two tracks of
/// some thousand points. The text is the same on every call. It is put together by hand, so that what reads it was not
/// also its writer.
std::string MakeSampleWalk();

} // namespace Demo

#endif
