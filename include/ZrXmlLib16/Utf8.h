// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_UTF8_H
#define ZRXMLLIB16_UTF8_H

#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlObjectBase.h"

#include <string>
#include <string_view>

namespace ZrXmlLib16 {

/// How a document is written; the members are the arguments of the entry points of CXmlObjectBase.
struct XmlOutputOptions {
    bool includeHeader = true;                      ///< whether the XML declaration is written
    bool formatted = true;                          ///< whether elements get lines of their own and indentation
    XmlEncoding encoding = Encoding_UTF8;           ///< of the octets
    EOLType eol = EOL_LF;                           ///< line end, also inside texts
    CompressionType compression = Compression_None; ///< files refuse Compression_ZLib
};

/// UTF-8 of wide text, as CEncoder has it.
inline std::string ToUtf8(std::wstring_view text)
{
    return CEncoder::UnicodeToUtf8(text.data(), text.length());
}

/// Wide text of UTF-8, as CEncoder has it.
inline std::wstring FromUtf8(std::string_view text)
{
    return CEncoder::Utf8ToUnicode(reinterpret_cast<const unsigned char*>(text.data()), text.length());
}

/// Fills the object from the bytes of a document: UTF-8 or what the document declares, compressed or not.
/// @throws CZrException as CXmlObjectBase::FromXmlStream does.
inline void ReadXml(CXmlObjectBase& object, std::string_view document,
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.FromXmlStream(reinterpret_cast<const unsigned char*>(document.data()), document.length(), context);
}

/// Loads the bytes of a document into a tree.
/// @throws CZrException as CXmlDocument::LoadXmlStream does.
inline void ReadXml(CXmlDocument& tree, std::string_view document)
{
    tree.LoadXmlStream(reinterpret_cast<const unsigned char*>(document.data()), document.length());
}

/// The object as the bytes of a document.
/// @throws CZrException as CXmlObjectBase::ToXmlStream does.
inline std::string WriteXml(const CXmlObjectBase& object, const XmlOutputOptions& options = XmlOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    const CBinaryData bytes = object.ToXmlStream(
        options.includeHeader, options.formatted, options.encoding, options.eol, context, options.compression);
    return std::string(reinterpret_cast<const char*>(bytes.GetData()), bytes.GetLength());
}

} // namespace ZrXmlLib16

#endif
