// SPDX-License-Identifier: MIT
#ifndef LEXICAL_SHORTTEXT_H
#define LEXICAL_SHORTTEXT_H

#include <cstddef>

namespace ZrXmlLib16 {

/// A short text of 16-bit units as a NUL-terminated one of other characters, on the stack.
template <class Character> class ShortText {
public:
    static constexpr std::size_t LONGEST = 48;
    /// Octets behind the units that are read, though they mean nothing: units are converted by blocks.
    static constexpr std::size_t OVERREAD = 16;

    /// @param length at most LONGEST
    ShortText(const unsigned short* units, std::size_t length)
    {
        static_assert(LONGEST % BLOCK == 0);
        for (std::size_t block = 0; block < length; block += BLOCK) {
            for (std::size_t i = block; i < block + BLOCK; ++i) {
                m_text[i] = static_cast<Character>(units[i]);
            }
        }
        m_text[length] = 0;
    }

    const Character* Get() const { return m_text; }

private:
    static constexpr std::size_t BLOCK = OVERREAD / sizeof(unsigned short);

    Character m_text[LONGEST + 1];
};

} // namespace ZrXmlLib16

#endif
