// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_STRINGBUFFER_H
#define ZRXMLLIB16_STRINGBUFFER_H

#include "ZrXmlLib16/Export.h"

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace ZrXmlLib16 {

/// Text that grows in blocks of a fixed size.
///
/// No block is ever reallocated, so appending never moves earlier text. Not synchronised.
class ZRXML_API CStringBuffer {
public:
    /// A buffer of blocks of 4095 characters.
    CStringBuffer();
    /// A buffer of blocks of n - 1 characters; n below 2 counts as 2.
    explicit CStringBuffer(unsigned long n);
    virtual ~CStringBuffer();

    /// Appends characters.
    void Append(wchar_t c);
    /// @param text NUL-terminated, may be part of this buffer; null is empty text.
    void Append(const wchar_t* text);
    /// Appends a text.
    void Append(const std::wstring& text);
    /// Appends a run of characters.
    /// @param text may be part of this buffer; may be null when the length is 0.
    void Append(const wchar_t* text, unsigned long length);
    /// Replaces the content. @param text may be part of this buffer; null is empty text.
    void SetText(const wchar_t* text);

    /// The whole text, NUL-terminated, joined into one block. The buffer owns it; it is valid until the next change.
    const wchar_t* GetText();
    /// Number of characters appended since the last clearing.
    unsigned long GetLength() const { return m_totalLength; }
    /// Drops the text and keeps the block when there is exactly one.
    void Empty();
    /// Drops the text and frees all blocks.
    void Clear();

    CStringBuffer(const CStringBuffer&) = delete;
    CStringBuffer& operator=(const CStringBuffer&) = delete;

private:
    friend class CTextStream;
    friend class CUtf8TextStream;
    friend class JsonXmlStream;
    friend class TextRun;

    bool HasRoom(unsigned long length) const { return length <= m_currentCapacity - m_usedInCurrent; }
    wchar_t* GetEnd() const { return m_current + m_usedInCurrent; }
    void Advance(unsigned long length);
    void AddBlock();
    void AddBlock(unsigned long capacity);
    static void CopyShort(const wchar_t* text, unsigned long length, wchar_t* output);
    void AppendOverBlocks(const wchar_t* text, unsigned long length);
    unsigned long GetUsed(std::size_t block) const;

    std::vector<std::unique_ptr<wchar_t[]>> m_blocks;
    std::vector<unsigned long> m_earlierLengths; // of the text in all blocks but the last
    unsigned long m_blockSize;
    unsigned long m_usedInCurrent;
    unsigned long m_currentCapacity;
    wchar_t* m_current;
    unsigned long m_totalLength;
};

inline void CStringBuffer::Append(wchar_t c)
{
    if (m_usedInCurrent == m_currentCapacity) {
        AddBlock();
    }
    m_current[m_usedInCurrent++] = c;
    ++m_totalLength;
}

inline void CStringBuffer::Append(const wchar_t* text, unsigned long length)
{
    if (!HasRoom(length)) {
        AppendOverBlocks(text, length);
        return;
    }
    CopyShort(text, length, GetEnd());
    Advance(length);
}

/// Counts what was written at the end.
inline void CStringBuffer::Advance(unsigned long length)
{
    m_usedInCurrent += length;
    m_totalLength += length;
}

/// Most pieces are a few characters, for which a call would cost more than the copy.
inline void CStringBuffer::CopyShort(const wchar_t* text, unsigned long length, wchar_t* output)
{
    constexpr unsigned long STEP = 4;
    if (length > 8 * STEP) {
        std::memcpy(output, text, length * sizeof(wchar_t));
        return;
    }
    for (; length >= STEP; length -= STEP) {
        std::memcpy(output, text, STEP * sizeof(wchar_t));
        output += STEP;
        text += STEP;
    }
    if ((length & 2) != 0) {
        std::memcpy(output, text, 2 * sizeof(wchar_t));
        output += 2;
        text += 2;
    }
    if ((length & 1) != 0) {
        *output = *text;
    }
}

} // namespace ZrXmlLib16

#endif
