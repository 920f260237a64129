// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_GENERATOR_H
#define EXAMPLES_SHARED_GENERATOR_H

#include "ZrXmlLib16/Version.h"

namespace Shared {

/// Says once which version of the generator the classes come from; every object calls it before it is used. The library
/// refuses to work with another version than its own.
inline void RegisterGenerator()
{
    static const bool registered = (ZrXmlLib16::Register(16, 1, "", "", ""), true);
    static_cast<void>(registered);
}

} // namespace Shared

#endif
