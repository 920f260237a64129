// SPDX-License-Identifier: MIT
#include "xml/LineTracker.h"

#include <algorithm>
#include <cstring>

namespace ZrXmlLib16 {

LineTracker::LineTracker(const unsigned char* text, std::size_t size) noexcept
    : m_text(text)
{
    // XML 1.0, appendix F: a text in UTF-16 begins with a mark or with "<". All other encodings that the parser takes
    // have the octets of ASCII for line ends.
    static constexpr struct {
        unsigned char octets[3];
        std::size_t length;
        Units units;
        bool isMark;
    } beginnings[] = {
        {{0xEF, 0xBB, 0xBF}, 3, Units::Octets, true},
        {{0xFF, 0xFE}, 2, Units::LittleEndian, true},
        {{0xFE, 0xFF}, 2, Units::BigEndian, true},
        {{'<', 0}, 2, Units::LittleEndian, false},
        {{0, '<'}, 2, Units::BigEndian, false},
    };
    for (const auto& beginning : beginnings) {
        if (size >= beginning.length && std::memcmp(text, beginning.octets, beginning.length) == 0) {
            m_units = beginning.units;
            m_unitShift = m_units == Units::Octets ? 0 : 1;
            m_markLength = beginning.isMark ? beginning.length : 0;
            break;
        }
    }
    Restart();
}

void LineTracker::Extend(std::size_t count) noexcept
{
    if (!m_text) {
        return;
    }
    const std::size_t from = std::max(m_size, m_lineStart);
    m_size += count;
    if (m_nextLineFeed == NONE) {
        m_nextLineFeed = Find('\n', from);
    }
    if (m_nextReturn == NONE) {
        m_nextReturn = Find('\r', from);
    }
    FindNextLine();
}

void LineTracker::Restart() noexcept
{
    m_line = 1;
    m_lineStart = m_markLength;
    m_nextLineFeed = Find('\n', m_lineStart);
    m_nextReturn = Find('\r', m_lineStart);
    FindNextLine();
}

TextPosition LineTracker::LocateElsewhere(std::size_t offset) noexcept
{
    if (!m_text || offset > m_size || offset < m_markLength) {
        return TextPosition();
    }
    if (offset < m_lineStart) {
        Restart();
    }
    while (offset >= m_nextLine) {
        if (m_line == UINT32_MAX) {
            return TextPosition();
        }
        ++m_line;
        m_lineStart = m_nextLine;
        FindNextLine();
    }
    return offset - m_lineStart < m_reach ? Locate(offset) : TextPosition();
}

void LineTracker::FindNextLine() noexcept
{
    if (m_nextLineFeed < m_lineStart) {
        m_nextLineFeed = Find('\n', m_lineStart);
    }
    if (m_nextReturn < m_lineStart) {
        m_nextReturn = Find('\r', m_lineStart);
    }
    const std::size_t end = std::min(m_nextLineFeed, m_nextReturn);
    const std::size_t unit = std::size_t(1) << m_unitShift;
    if (end == NONE) {
        m_nextLine = NONE;
    } else {
        m_nextLine = end + unit == m_nextLineFeed ? end + 2 * unit : end + unit;
    }
    m_reach = std::min(m_nextLine - m_lineStart, std::size_t(UINT32_MAX) << m_unitShift);
}

/// The offset of the next unit with this character; NONE when there is none.
std::size_t LineTracker::Find(char character, std::size_t from) const noexcept
{
    while (from < m_size) {
        const void* const found = std::memchr(m_text + from, character, m_size - from);
        if (!found) {
            return NONE;
        }
        const std::size_t at = static_cast<std::size_t>(static_cast<const unsigned char*>(found) - m_text);
        if (m_units == Units::Octets) {
            return at;
        }
        const std::size_t low = m_units == Units::LittleEndian ? 0 : 1;
        const std::size_t unit = at - at % 2;
        if (at % 2 == low && unit + 1 < m_size && m_text[unit + 1 - low] == 0) {
            return unit;
        }
        from = at + 1;
    }
    return NONE;
}

} // namespace ZrXmlLib16
