// SPDX-License-Identifier: MIT
#ifndef STREAMS_TEXTRUN_H
#define STREAMS_TEXTRUN_H

#include "ZrXmlLib16/TextStream.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include <emmintrin.h>

namespace ZrXmlLib16 {

/// A piece of text that is composed in place at the end of a stream: room is made once, and then nothing looks at it
/// again. The piece belongs to the stream when the run ends; meanwhile nothing else may use the stream.
class TextRun {
public:
    static constexpr std::ptrdiff_t PIECE = 256;

    /// Texts of any length are put in pieces that fit into one run.
    static const wchar_t* EndOfPiece(const wchar_t* text, const wchar_t* end)
    {
        return text + std::min(end - text, PIECE);
    }

    /// Has a long text loaded a page ahead of where it is read, because the processor does not look beyond a page.
    class Prefetch {
    public:
        explicit Prefetch(const wchar_t* text, const wchar_t* end)
            : m_next(text)
            , m_end(end)
        {
        }

        /// To be called wherever the text is gone on with.
        void At(const wchar_t* text)
        {
            constexpr std::ptrdiff_t LINE = 16;
            constexpr std::ptrdiff_t PAGE = 1024;
            const wchar_t* const stop = text + std::min(m_end - text, PAGE);
            for (; stop - m_next >= LINE; m_next += LINE) {
                __builtin_prefetch(m_next);
            }
        }

    private:
        const wchar_t* m_next;
        const wchar_t* const m_end;
    };

    /// @param length at least the number of characters that will be put.
    TextRun(CTextStream& stream, std::size_t length)
        : m_buffer(stream.m_buffer)
    {
        if (!m_buffer.HasRoom(length)) {
            stream.MakeRoom(length);
        }
        m_end = m_buffer.GetEnd();
    }
    ~TextRun() { m_buffer.Advance(static_cast<unsigned long>(m_end - m_buffer.GetEnd())); }
    TextRun(const TextRun&) = delete;
    TextRun& operator=(const TextRun&) = delete;

    void Put(wchar_t c) { *m_end++ = c; }
    void Put(const wchar_t* text, std::size_t length) { m_end = Copy(text, length, m_end); }
    void Put(const std::wstring& text) { Put(text.data(), text.size()); }
    template <std::size_t N> void PutLiteral(const wchar_t (&text)[N]) { Put(text, N - 1); }

    /// Puts characters up to the first one that Escapes does not let pass. @return where that one is, or the end.
    ///
    /// Escapes::IsSpecial(c) says whether a character may not pass, Escapes::Candidates(four) marks among four
    /// characters at least those.
    template <class Escapes> const wchar_t* PutPlain(const wchar_t* text, const wchar_t* end, const Escapes& escapes)
    {
        constexpr std::ptrdiff_t STEP = 4;
        for (; end - text >= STEP; text += STEP, m_end += STEP) {
            const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(m_end), four);
            if (_mm_movemask_epi8(escapes.Candidates(four)) != 0) {
                const auto isSpecial = [&](wchar_t c) { return escapes.IsSpecial(c); };
                const wchar_t* const special = std::find_if(text, text + STEP, isSpecial);
                if (special != text + STEP) {
                    m_end += special - text;
                    return special;
                }
            }
        }
        for (; text != end && !escapes.IsSpecial(*text); ++text) {
            Put(*text);
        }
        return text;
    }

    /// Copies a text that is mostly short. @return the end of the copy.
    static wchar_t* Copy(const wchar_t* text, std::size_t length, wchar_t* out)
    {
        CStringBuffer::CopyShort(text, length, out);
        return out + length;
    }

private:
    CStringBuffer& m_buffer;
    wchar_t* m_end;
};

} // namespace ZrXmlLib16

#endif
