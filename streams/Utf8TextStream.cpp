// SPDX-License-Identifier: MIT
#include "streams/Utf8TextStream.h"

#include "streams/LargePages.h"
#include "streams/UnicodeText.h"
#include "streams/Utf8Encoding.h"

#include <algorithm>

namespace ZrXmlLib16 {

namespace {

// Small enough for the innermost cache and for small documents.
constexpr unsigned long BLOCK_SIZE = 2048;
constexpr unsigned long LONGEST_CHARACTER = 4;
constexpr unsigned long LARGEST_CHUNK = 1ul << 20;

} // namespace

CUtf8TextStream::CUtf8TextStream()
    : CTextStream(Encoding_UTF8, BLOCK_SIZE)
    , m_length(0)
{
}

CUtf8TextStream::~CUtf8TextStream() = default;

void CUtf8TextStream::Flush()
{
    if (m_buffer.m_usedInCurrent == 0) {
        return;
    }
    // A high surrogate waits for the unit behind it, as it would without flushes.
    const wchar_t last = m_buffer.m_current[m_buffer.m_usedInCurrent - 1];
    const bool waits = IsHighSurrogate(static_cast<std::uint32_t>(last));
    if (waits) {
        --m_buffer.m_usedInCurrent;
        --m_buffer.m_totalLength;
    }
    Encode();
    if (waits) {
        Append(last);
    }
}

void CUtf8TextStream::MakeRoom(unsigned long length)
{
    Flush();
    if (!m_buffer.HasRoom(length)) {
        CTextStream::MakeRoom(length);
    }
}

void CUtf8TextStream::Encode()
{
    if (m_buffer.m_blocks.size() == 1) {
        const TextPiece piece = {m_buffer.m_current, m_buffer.m_usedInCurrent};
        const unsigned long longest = LONGEST_CHARACTER * piece.length;
        unsigned char* const room = MakeOctetRoom(HasOctetRoom(longest) ? longest : Utf8Length(&piece, 1));
        CountOctets(static_cast<unsigned long>(WriteUtf8(&piece, 1, room) - room));
    } else {
        const CBinaryData octets = EncodeUtf8();
        std::copy_n(octets.GetData(), octets.GetLength(), MakeOctetRoom(octets.GetLength()));
        CountOctets(octets.GetLength());
    }
    EmptyText();
}

void CUtf8TextStream::CountOctets(unsigned long count)
{
    m_chunks.back().used += count;
    m_length += count;
}

bool CUtf8TextStream::HasOctetRoom(unsigned long size) const
{
    return !m_chunks.empty() && size <= m_chunks.back().size - m_chunks.back().used;
}

unsigned char* CUtf8TextStream::MakeOctetRoom(unsigned long size)
{
    if (!HasOctetRoom(size)) {
        const unsigned long chunkSize = std::max(size, std::min(m_length / 2, LARGEST_CHUNK));
        m_chunks.push_back({std::unique_ptr<unsigned char[]>(new unsigned char[chunkSize]), 0, chunkSize});
    }
    return m_chunks.back().octets.get() + m_chunks.back().used;
}

CBinaryData CUtf8TextStream::TakeOctets()
{
    Encode();
    if (m_length == 0) {
        return CBinaryData();
    }
    std::unique_ptr<unsigned char[]> octets(new unsigned char[m_length]);
    PreferLargePages(octets.get(), m_length);
    unsigned char* out = octets.get();
    for (Chunk& chunk : m_chunks) {
        out = std::copy_n(chunk.octets.get(), chunk.used, out);
        chunk.octets.reset();
    }
    m_chunks.clear();
    return CBinaryData(octets.release(), m_length, true);
}

} // namespace ZrXmlLib16
