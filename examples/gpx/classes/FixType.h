// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_FIXTYPE_H
#define EXAMPLES_GPX_CLASSES_FIXTYPE_H

namespace Gpx {

/// How a position was found (fixType).
enum FixType : int { FixType_none, FixType_2d, FixType_3d, FixType_dgps, FixType_pps };

/// Text form of a value. @throws CZrInvalidParamException for a number that is no value.
const wchar_t* FixTypeToString(int value);
/// Value of a text form. @throws CZrInvalidValueException for a text that is none.
int FixTypeFromString(const wchar_t* text);

} // namespace Gpx

#endif
