// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_PROPERTYACCESS_H
#define EXAMPLES_GPX_CLASSES_PROPERTYACCESS_H

#include "shared/PropertyAccess.h"

namespace Gpx {

using namespace Shared;

} // namespace Gpx

#endif
