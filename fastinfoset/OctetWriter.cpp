// SPDX-License-Identifier: MIT
#include "fastinfoset/OctetWriter.h"

#include "ZrXmlLib16/BinaryStream.h"
#include "streams/UnicodeText.h"
#include "streams/Utf8Encoding.h"

#include <algorithm>
#include <cstring>

#include <emmintrin.h>

namespace ZrXmlLib16 {

namespace {

// A character takes at most four octets.
constexpr unsigned long PIECE_LENGTH = 1024;

/// Writes one octet per character. @return whether they were all ASCII; otherwise the octets say nothing.
bool NarrowAscii(const wchar_t* text, unsigned long n, unsigned char* out)
{
    constexpr unsigned long STEP = 4;
    __m128i all = _mm_setzero_si128();
    unsigned long i = 0;
    for (; n - i >= STEP; i += STEP) {
        const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + i));
        all = _mm_or_si128(all, four);
        const __m128i units = _mm_packs_epi32(four, four);
        const int octets = _mm_cvtsi128_si32(_mm_packus_epi16(units, units));
        std::memcpy(out + i, &octets, STEP);
    }
    const __m128i beyondAscii = _mm_and_si128(all, _mm_set1_epi32(~0x7F));
    if (_mm_movemask_epi8(_mm_cmpeq_epi32(beyondAscii, _mm_setzero_si128())) != 0xFFFF) {
        return false;
    }
    std::uint32_t bits = 0;
    for (; i < n; ++i) {
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
