// SPDX-License-Identifier: MIT
#include "streams/Utf8Encoding.h"

#include "streams/UnicodeText.h"

#include <algorithm>
#include <memory>

#include <emmintrin.h>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned long ASCII_RUN = 16;

__m128i LoadFour(const wchar_t* text)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
}

/// Whether the next ASCII_RUN characters are all ASCII.
bool IsAsciiRun(const wchar_t* text)
{
    const __m128i all = _mm_or_si128(
        _mm_or_si128(LoadFour(text), LoadFour(text + 4)), _mm_or_si128(LoadFour(text + 8), LoadFour(text + 12)));
    const __m128i beyondAscii = _mm_and_si128(all, _mm_set1_epi32(~0x7F));
    return _mm_movemask_epi8(_mm_cmpeq_epi32(beyondAscii, _mm_setzero_si128())) == 0xFFFF;
}

class CountingSink {
public:
    void AddAsciiRun(const wchar_t*) { m_length += ASCII_RUN; }
    void AddCodePoint(std::uint32_t value)
    {
        m_length += value < 0x80 ? 1 : value < 0x800 ? 2 : value < 0x10000 ? 3 : 4;
    }
    unsigned long GetLength() const { return m_length; }

private:
    unsigned long m_length = 0;
};

class WritingSink {
public:
    explicit WritingSink(unsigned char* out)
        : m_out(out)
    {
    }

    void AddAsciiRun(const wchar_t* text)
    {
        const __m128i low = _mm_packs_epi32(LoadFour(text), LoadFour(text + 4));
        const __m128i high = _mm_packs_epi32(LoadFour(text + 8), LoadFour(text + 12));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(m_out), _mm_packus_epi16(low, high));
        m_out += ASCII_RUN;
    }

    void AddCodePoint(std::uint32_t value)
    {
        if (value < 0x80) {
            Put(value);
        } else if (value < 0x800) {
            Put(0xC0 | value >> 6);
            PutTail(value);
        } else if (value < 0x10000) {
            Put(0xE0 | value >> 12);
            PutTail(value >> 6);
            PutTail(value);
        } else {
            Put(0xF0 | value >> 18);
            PutTail(value >> 12);
            PutTail(value >> 6);
            PutTail(value);
        }
    }

    unsigned char* GetEnd() const { return m_out; }

private:
    void Put(std::uint32_t octet) { *m_out++ = static_cast<unsigned char>(octet); }
    void PutTail(std::uint32_t bits) { Put(0x80 | (bits & 0x3F)); }

    unsigned char* m_out;
};

/// Joins surrogate pairs and hands the sink valid code points only. A high surrogate waits for the unit behind it,
/// which may come with the next piece.
template <class Sink> class CodePointScanner {
public:
    explicit CodePointScanner(Sink& sink)
        : m_sink(sink)
    {
    }

    void Scan(const TextPiece& piece)
    {
        const wchar_t* text = piece.text;
        const wchar_t* const end = text + piece.length;
        while (text != end) {
            if (m_high == 0) {
                text = ScanAscii(text, end);
            }
            const wchar_t* const stop = text + std::min(ASCII_RUN, static_cast<unsigned long>(end - text));
            for (; text != stop; ++text) {
                AddUnit(static_cast<std::uint32_t>(*text));
            }
        }
    }

    void Finish()
    {
        if (m_high != 0) {
            m_sink.AddCodePoint(REPLACEMENT_CHARACTER);
        }
    }

private:
    const wchar_t* ScanAscii(const wchar_t* text, const wchar_t* end)
    {
        for (; static_cast<unsigned long>(end - text) >= ASCII_RUN && IsAsciiRun(text); text += ASCII_RUN) {
            m_sink.AddAsciiRun(text);
        }
        return text;
    }

    void AddUnit(std::uint32_t unit)
    {
        if (m_high != 0) {
            const std::uint32_t high = m_high;
            m_high = 0;
            if (IsLowSurrogate(unit)) {
                m_sink.AddCodePoint(JoinSurrogates(high, unit));
                return;
            }
            m_sink.AddCodePoint(REPLACEMENT_CHARACTER);
        }
        if (IsHighSurrogate(unit)) {
            m_high = unit;
            return;
        }
        m_sink.AddCodePoint(IsLowSurrogate(unit) || unit > LAST_CODE_POINT ? REPLACEMENT_CHARACTER : unit);
    }

    Sink& m_sink;
    std::uint32_t m_high = 0;
};

template <class Sink> void ScanText(const TextPiece* pieces, std::size_t count, Sink& sink)
{
    CodePointScanner<Sink> scanner(sink);
    for (std::size_t i = 0; i < count; ++i) {
        scanner.Scan(pieces[i]);
    }
    scanner.Finish();
}

} // namespace

unsigned long Utf8Length(const TextPiece* pieces, std::size_t count)
{
    CountingSink sink;
    ScanText(pieces, count, sink);
    return sink.GetLength();
}

unsigned char* WriteUtf8(const TextPiece* pieces, std::size_t count, unsigned char* out)
{
    WritingSink sink(out);
    ScanText(pieces, count, sink);
    return sink.GetEnd();
}

CBinaryData EncodeUtf8(const TextPiece* pieces, std::size_t count)
{
    const unsigned long length = Utf8Length(pieces, count);
    if (length == 0) {
        return CBinaryData();
    }
    std::unique_ptr<unsigned char[]> octets(new unsigned char[length]);
    WriteUtf8(pieces, count, octets.get());
    return CBinaryData(octets.release(), length, true);
}

} // namespace ZrXmlLib16
