// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLSTREAMS_H
#define ZRXMLLIB16_XMLSTREAMS_H

#include "ZrXmlLib16/Utf8.h"
#include "ZrXmlLib16/ZrException.h"

#include <istream>
#include <ostream>
#include <string>

namespace ZrXmlLib16 {

/// Reads a stream, opened as binary, to its end, where it is then.
/// @throws CZrException for a stream that is not good or fails.
inline std::string ReadToEnd(std::istream& stream)
{
    if (!std::istream::sentry(stream, true)) {
        throw CZrException(L"The input stream cannot be read.");
    }
    constexpr std::size_t block = 65536;
    std::string bytes;
    std::streamsize count = 0;
    try {
        do {
            const std::size_t length = bytes.length();
            bytes.resize(length + block);
            count = stream.rdbuf()->sgetn(&bytes[length], static_cast<std::streamsize>(block));
            bytes.resize(length + static_cast<std::size_t>(count));
        } while (count > 0);
    } catch (const std::ios_base::failure&) {
        throw CZrException(L"The input stream cannot be read.");
    }
    stream.setstate(std::ios_base::eofbit);
    return bytes;
}

/// Writes bytes to a stream, opened as binary.
/// @throws CZrException when the stream does not take everything.
inline void WriteAll(const std::string& bytes, std::ostream& stream)
{
    if (!stream.write(bytes.data(), static_cast<std::streamsize>(bytes.length()))) {
        throw CZrException(L"The output stream cannot be written.");
    }
}

/// Fills the object from a stream, which is read to its end.
/// @throws CZrException as ReadToEnd and CXmlObjectBase::FromXmlStream do.
inline void ReadXml(CXmlObjectBase& object, std::istream& stream,
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    ReadXml(object, ReadToEnd(stream), context);
}

/// Loads a stream into a tree; it is read to its end.
/// @throws CZrException as ReadToEnd and CXmlDocument::LoadXmlStream do.
inline void ReadXml(CXmlDocument& tree, std::istream& stream)
{
    ReadXml(tree, ReadToEnd(stream));
}

/// Writes the object to a stream, opened as binary, after the whole document has been made: a failure of the object
/// writes nothing.
/// @throws CZrException as CXmlObjectBase::ToXmlStream and WriteAll do.
inline void WriteXml(const CXmlObjectBase& object, std::ostream& stream,
    const XmlOutputOptions& options = XmlOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    WriteAll(WriteXml(object, options, context), stream);
}

/// The same for JSON in UTF-8.
/// @throws CZrException as ReadToEnd and CXmlObjectBase::FromJsonStream do.
inline void ReadJson(CXmlObjectBase& object, std::istream& stream,
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    ReadJson(object, ReadToEnd(stream), context);
}

/// @throws CZrException as ReadToEnd and ReadJson of a tree do.
inline void ReadJson(CXmlDocument& tree, std::istream& stream)
{
    ReadJson(tree, ReadToEnd(stream));
}

/// @throws CZrException as CXmlObjectBase::ToJsonStream and WriteAll do.
inline void WriteJson(const CXmlObjectBase& object, std::ostream& stream,
    const JsonOutputOptions& options = JsonOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    WriteAll(WriteJson(object, options, context), stream);
}

/// The same for Fast Infoset, which ReadXml reads.
/// @throws CZrException as CXmlObjectBase::ToFastInfosetStream and WriteAll do.
inline void WriteFastInfoset(const CXmlObjectBase& object, std::ostream& stream,
    const FastInfosetOutputOptions& options = FastInfosetOutputOptions(),
    const CSerializationContext& context = CSerializationContext::m_defaultContext)
{
    WriteAll(WriteFastInfoset(object, options, context), stream);
}

} // namespace ZrXmlLib16

#endif
