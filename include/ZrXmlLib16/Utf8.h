// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_UTF8_H
#define ZRXMLLIB16_UTF8_H

#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/Export.h"
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

/// How an object is written as JSON.
struct JsonOutputOptions {
    bool formatted = true;                          ///< whether members get lines of their own and indentation
    XmlEncoding encoding = Encoding_UTF8;           ///< of the octets
    EOLType eol = EOL_LF;                           ///< line end, also inside texts
    CompressionType compression = Compression_None; ///< files refuse Compression_ZLib
};

/// How an object is written as Fast Infoset; what else there is to choose is in the context.
struct FastInfosetOutputOptions {
    FInfoDecl declaration = FInfoDecl_None;         ///< in front of the document
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

/// The octets of binary data as they are, in a string.
inline std::string BytesOf(const CBinaryData& data)
{
    return std::string(reinterpret_cast<const char*>(data.GetData()), data.GetLength());
}

/// Fills the object from the bytes of a document: XML in UTF-8 or what the document declares, or Fast Infoset,
/// compressed or not.
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
    return BytesOf(object.ToXmlStream(
        options.includeHeader, options.formatted, options.encoding, options.eol, context, options.compression));
}

/// Fills the object from JSON in UTF-8, compressed or not.
/// @throws CZrException as CXmlObjectBase::FromJsonStream does.
inline void ReadJson(CXmlObjectBase& object, std::string_view document,
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    object.FromJsonStream(reinterpret_cast<const unsigned char*>(document.data()), document.length(), context);
}

/// Loads JSON in UTF-8 into a tree, in the JSON mode of the tree's context.
/// @throws CZrException as CXmlDocument::LoadJsonStream and LoadXmlStream do.
ZRXML_API void ReadJson(CXmlDocument& tree, std::string_view document);

/// The object as the bytes of a JSON document.
/// @throws CZrException as CXmlObjectBase::ToJsonStream does.
inline std::string WriteJson(const CXmlObjectBase& object, const JsonOutputOptions& options = JsonOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    return BytesOf(object.ToJsonStream(options.formatted, options.encoding, options.eol, context, options.compression));
}

/// The object as the bytes of a Fast Infoset document, which ReadXml reads.
/// @throws CZrException as CXmlObjectBase::ToFastInfosetStream does.
inline std::string WriteFastInfoset(const CXmlObjectBase& object,
    const FastInfosetOutputOptions& options = FastInfosetOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    return BytesOf(object.ToFastInfosetStream(options.declaration, context, options.compression));
}

} // namespace ZrXmlLib16

#endif
