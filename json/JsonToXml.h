// SPDX-License-Identifier: MIT
#ifndef JSON_JSONTOXML_H
#define JSON_JSONTOXML_H

#include "ZrXmlLib16/BinaryData.h"
#include "streams/Utf8Decoding.h"

#include <string_view>

/// JSON text as XML text without XML declaration, which is empty for an empty text without root element name.
namespace ZrXmlLib16 {

class CSerializationContext;

/// The text in UTF-16 units as far as the JSON text is; surrogates without partner and units beyond 16 bits stay.
/// @throws CZrException for a text that gets too long, and as CJsonTextReader::ConvertJsonToXml does.
WideText ConvertJsonToText(std::wstring_view json, const CSerializationContext& context);
/// The text as it is after a conversion to UTF-8 and back: U+FFFD for lone surrogates, pairs for units beyond 16 bits.
WideText MakeWellFormed(WideText xml);
/// The text in UTF-8.
CBinaryData EncodeXml(const WideText& xml);

} // namespace ZrXmlLib16

#endif
