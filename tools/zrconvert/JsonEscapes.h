// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_JSONESCAPES_H
#define ZRCONVERT_JSONESCAPES_H

#include "Formats.h"

namespace Convert {

/// The library reads an escape such as \u00e9 as one hexadecimal digit and writes quotation marks and backslashes
/// without an escape, for the sake of the programs that rely on it. Here documents of others are exchanged.

/// JSON text with the characters that its \u escapes stand for, in UTF-8. Half a surrogate pair becomes U+FFFD.
Bytes DecodeUnicodeEscapes(const Bytes& json);

/// Puts JSON escapes into the texts and attribute values of the tree, for a writer that adds none.
/// @throws CZrException for a namespace to declare that would need one.
void EscapeForJson(ZrXmlLib16::CElement& tree, const ZrXmlLib16::CSerializationContext& context);

} // namespace Convert

#endif
