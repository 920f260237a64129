// SPDX-License-Identifier: MIT
#ifndef METADATA_ENUMERATIONTEXT_H
#define METADATA_ENUMERATIONTEXT_H

#include "ZrXmlLib16Data/ElementInfo.h"

namespace ZrXmlLib16Data {

/// Lexical form of the enumeration value in the variant; never null.
/// @throws CZrException when the generated converter has none.
const wchar_t* EnumerationText(EnumToString enumToString, const ZrXmlLib16::ZrVariant& value);

} // namespace ZrXmlLib16Data

#endif
