// SPDX-License-Identifier: MIT
#ifndef XML_LINETRACKER_H
#define XML_LINETRACKER_H

#include "ZrXmlLib16/XmlElement.h"

#include <cstddef>
#include <cstdint>

namespace ZrXmlLib16 {

/// Finds the line and column of offsets into an XML text. Offsets in ascending order cost one search for every line
/// end; none looks at the characters between. The text is looked at as it is parsed: it may be larger than memory.
///
/// Lines end as XML 1.0 section 2.11 says: with CR LF, LF or CR. A byte-order mark is not part of the first line.
/// Borrows the text.
class LineTracker {
public:
    /// Knows no position.
    LineTracker() noexcept = default;
    /// Knows the beginning, as far as it is needed to tell the encoding.
    LineTracker(const unsigned char* text, std::size_t size) noexcept;

    /// Octets more are there to be located.
    void Extend(std::size_t count) noexcept;

    /// @param offset in octets; unknown beyond what is there.
    TextPosition Locate(std::size_t offset) noexcept
    {
        const std::size_t distance = offset - m_lineStart;
        if (distance >= m_reach) {
            return LocateElsewhere(offset);
        }
        return {m_line, static_cast<std::uint32_t>(distance >> m_unitShift) + 1};
    }

private:
    enum class Units { Octets, LittleEndian, BigEndian };
    static constexpr std::size_t NONE = SIZE_MAX;

    [[gnu::noinline]] TextPosition LocateElsewhere(std::size_t offset) noexcept;
    void Restart() noexcept;
    void FindNextLine() noexcept;
    std::size_t Find(char character, std::size_t from) const noexcept;

    const unsigned char* m_text = nullptr;
    std::size_t m_size = 0; // so far
    std::size_t m_markLength = 0;
    Units m_units = Units::Octets;
    unsigned m_unitShift = 0; // octets of a unit, as a power of 2
    // The current line. Offsets in octets; NONE for what was not seen so far.
    std::uint32_t m_line = 0;
    std::size_t m_lineStart = 0;
    std::size_t m_reach = 0; // octets from the start of the line whose columns are known
    std::size_t m_nextLine = 0;
    std::size_t m_nextLineFeed = 0;
    std::size_t m_nextReturn = 0;
};

} // namespace ZrXmlLib16

#endif
