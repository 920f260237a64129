// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/TextStream.h"

#include "ZrXmlLib16/ZrException.h"
#include "streams/StreamMessages.h"
#include "streams/Utf8Encoding.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <memory>
#include <vector>

namespace ZrXmlLib16 {

CTextStream::CTextStream()
    : CTextStream(Encoding_None)
{
}

CTextStream::CTextStream(XmlEncoding encoding)
    : m_encoding(encoding)
{
}

CTextStream::CTextStream(XmlEncoding encoding, unsigned long blockSize)
    : m_buffer(blockSize)
    , m_encoding(encoding)
{
}

CTextStream::CTextStream(const wchar_t*, XmlEncoding encoding)
    : CTextStream(encoding)
{
}

CTextStream::~CTextStream() = default;

void CTextStream::Open()
{
    EmptyText();
}

void CTextStream::Close() { }

void CTextStream::Flush() { }

void CTextStream::Append(const wchar_t* text)
{
    if (text != nullptr) {
        Append(text, std::wcslen(text));
    }
}

/// Piece by piece, so that a stream which encodes as it goes never holds the whole text.
void CTextStream::AppendLong(const wchar_t* text, unsigned long length)
{
    constexpr unsigned long PIECE = 512;
    while (length > 0) {
        const unsigned long part = std::min(length, PIECE);
        if (!m_buffer.HasRoom(part)) {
            MakeRoom(part);
        }
        m_buffer.Append(text, part);
        text += part;
        length -= part;
    }
}

void CTextStream::MakeRoom(unsigned long length)
{
    m_buffer.AddBlock(std::max(length, m_buffer.m_blockSize));
}

const wchar_t* CTextStream::GetText()
{
    return m_buffer.GetText();
}

XmlEncoding CTextStream::GetEncoding() const
{
    return m_encoding;
}

void CTextStream::EmptyText()
{
    m_buffer.Empty();
}

CBinaryData CTextStream::GetEncodedStream()
{
    switch (m_encoding) {
    case Encoding_UTF8:
        return EncodeUtf8();
    case Encoding_UTF16:
        return WidenFirstQuarter();
    case Encoding_Wide:
        return CopyStorage();
    default:
        throw CZrException(Message::UNKNOWN_ENCODING);
    }
}

CBinaryData CTextStream::EncodeUtf8() const
{
    std::vector<TextPiece> pieces;
    pieces.reserve(m_buffer.m_blocks.size());
    for (std::size_t i = 0; i < m_buffer.m_blocks.size(); ++i) {
        pieces.push_back({m_buffer.m_blocks[i].get(), m_buffer.GetUsed(i)});
    }
    return ZrXmlLib16::EncodeUtf8(pieces.data(), pieces.size());
}

CBinaryData CTextStream::WidenFirstQuarter()
{
    // kept: required behaviour. Each unit is one octet of the storage, so three quarters of the text are not covered.
    const unsigned long length = GetLength();
    const unsigned char* const storage = reinterpret_cast<const unsigned char*>(GetText());
    std::unique_ptr<unsigned char[]> units(new unsigned char[2 * length]);
    for (unsigned long i = 0; i < length; ++i) {
        units[2 * i] = storage[i];
        units[2 * i + 1] = 0;
    }
    return CBinaryData(units.release(), 2 * length, true);
}

CBinaryData CTextStream::CopyStorage() const
{
    const unsigned long size = GetLength() * sizeof(wchar_t);
    std::unique_ptr<unsigned char[]> octets(new unsigned char[size]);
    unsigned char* out = octets.get();
    for (std::size_t i = 0; i < m_buffer.m_blocks.size(); ++i) {
        const unsigned long blockSize = m_buffer.GetUsed(i) * sizeof(wchar_t);
        std::memcpy(out, m_buffer.m_blocks[i].get(), blockSize);
        out += blockSize;
    }
    return CBinaryData(octets.release(), size, true);
}

} // namespace ZrXmlLib16
