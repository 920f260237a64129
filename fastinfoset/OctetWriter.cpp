// SPDX-License-Identifier: MIT
#include "fastinfoset/OctetWriter.h"

#include "ZrXmlLib16/BinaryStream.h"
#include "streams/UnicodeText.h"
#include "streams/Utf8Encoding.h"

#include <algorithm>
#include <cstring>

namespace ZrXmlLib16 {

namespace {

// A character takes at most four octets.
constexpr unsigned long PIECE_LENGTH = 1024;

/// Writes one octet per character, whatever the characters are. @return whether they were all ASCII.
bool NarrowAscii(const wchar_t* text, unsigned long n, unsigned char* __restrict out)
{
    std::uint32_t bits = 0;
    for (unsigned long i = 0; i < n; ++i) {
        const auto character = static_cast<std::uint32_t>(text[i]);
        bits |= character;
        out[i] = static_cast<unsigned char>(character);
    }
    return bits < 0x80;
}

/// The next piece of a text, which never ends between the surrogates of a pair.
TextPiece NextPiece(const wchar_t* text, const wchar_t* end)
{
    unsigned long length = std::min(PIECE_LENGTH, static_cast<unsigned long>(end - text));
    if (text + length != end && IsHighSurrogate(static_cast<std::uint32_t>(text[length - 1]))) {
        --length;
    }
    return {text, length};
}

} // namespace

OctetWriter::OctetWriter(CBinaryStream& stream)
    : m_stream(stream)
    , m_used(0)
{
}

void OctetWriter::Append(const unsigned char* octets, unsigned long n)
{
    if (n > BLOCK_SIZE) {
        Flush();
        m_stream.Append(octets, n);
    } else if (n > 0) {
        std::memcpy(Reserve(n), octets, n);
        m_used += n;
    }
}

void OctetWriter::PutOctetString(
    const Codec& lengthCodec, unsigned int leadingBits, const unsigned char* octets, unsigned long n)
{
    PutCode(lengthCodec, n, leadingBits);
    Append(octets, n);
}

void OctetWriter::PutText(const Codec& lengthCodec, unsigned int leadingBits, const std::wstring& text)
{
    const unsigned long length = text.size();
    if (length <= BLOCK_SIZE - MAXIMUM_CODE_OCTETS) {
        unsigned char* const begin = Reserve(MAXIMUM_CODE_OCTETS + length);
        const unsigned long codeOctets = WriteCode(lengthCodec, length, leadingBits, begin);
        if (NarrowAscii(text.data(), length, begin + codeOctets)) {
            m_used += codeOctets + length;
            return;
        }
    }
    PutLongText(lengthCodec, leadingBits, text);
}

void OctetWriter::PutLongText(const Codec& lengthCodec, unsigned int leadingBits, const std::wstring& text)
{
    const TextPiece whole{text.data(), text.size()};
    PutCode(lengthCodec, Utf8Length(&whole, 1), leadingBits);
    const wchar_t* const end = text.data() + text.size();
    for (const wchar_t* position = text.data(); position != end;) {
        const TextPiece piece = NextPiece(position, end);
        const unsigned long octets = Utf8Length(&piece, 1);
        WriteUtf8(&piece, 1, Reserve(octets));
        m_used += octets;
        position += piece.length;
    }
}

void OctetWriter::Flush()
{
    m_stream.Append(m_block, m_used);
    m_used = 0;
}

void OctetWriter::FlushQuietly() noexcept
{
    try {
        Flush();
    } catch (...) {
        // The failure that is on its way already says more.
    }
}

} // namespace ZrXmlLib16
