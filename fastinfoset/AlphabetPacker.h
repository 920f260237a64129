// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_ALPHABETPACKER_H
#define FASTINFOSET_ALPHABETPACKER_H

#include "ZrXmlLib16/ZrException.h"
#include "fastinfoset/CodecRanges.h"
#include "fastinfoset/FastInfosetMessages.h"

#include <string>
#include <vector>

namespace ZrXmlLib16 {

/// Packs text in the characters of a restricted alphabet (X.891, C.30): each character is its position in the
/// alphabet, in as few bits as leave the value of all ones free; that one fills the last octet up.
class AlphabetPacker {
public:
    /// @param alphabet borrowed.
    /// @throws CZrException unless the characters take 4 or 8 bits.
    explicit AlphabetPacker(const std::wstring& alphabet)
        : m_alphabet(alphabet)
        , m_bits(BitsPerCharacter(alphabet.size()))
    {
        for (unsigned char& position : m_asciiPositions) {
            position = NOT_THERE;
        }
        for (std::size_t i = alphabet.size(); i-- > 0;) {
            if (IsAscii(alphabet[i])) {
                m_asciiPositions[static_cast<std::size_t>(alphabet[i])] = static_cast<unsigned char>(i);
            }
        }
    }

    /// Replaces the octets.
    /// @throws CZrException for a character that is not in the alphabet.
    void Pack(const std::wstring& text, std::vector<unsigned char>& octets) const
    {
        if (m_bits == 8) {
            octets.resize(text.size());
            for (std::size_t i = 0; i < text.size(); ++i) {
                octets[i] = static_cast<unsigned char>(PositionOf(text[i]));
            }
            return;
        }
        octets.resize((text.size() + 1) / 2);
        for (std::size_t i = 0; i < octets.size(); ++i) {
            const unsigned int high = PositionOf(text[2 * i]);
            const unsigned int low = 2 * i + 1 < text.size() ? PositionOf(text[2 * i + 1]) : FILLER;
            octets[i] = static_cast<unsigned char>(high << 4 | low);
        }
    }

private:
    static constexpr unsigned char NOT_THERE = 0xFF; // alphabets have at most 255 characters
    static constexpr unsigned int FILLER = 0x0F;

    static bool IsAscii(wchar_t character) { return character >= 0 && character < 0x80; }

    static unsigned int BitsPerCharacter(std::size_t length)
    {
        if (length < 2 || length > MAXIMUM_INDEX) {
            throw CZrException(Message::ALPHABET_LENGTH_INVALID);
        }
        unsigned int bits = 3;
        while (std::size_t{1} << bits <= length) {
            ++bits;
        }
        if (bits != 4 && bits != 8) {
            throw CZrException(Message::ALPHABET_NOT_PACKABLE);
        }
        return bits;
    }

    unsigned int PositionOf(wchar_t character) const
    {
        if (IsAscii(character)) {
            const unsigned char position = m_asciiPositions[static_cast<std::size_t>(character)];
            if (position != NOT_THERE) {
                return position;
            }
        } else {
            const std::size_t position = m_alphabet.find(character);
            if (position != std::wstring::npos) {
                return static_cast<unsigned int>(position);
            }
        }
        throw CZrException(Message::CHARACTER_NOT_IN_ALPHABET);
    }

    const std::wstring& m_alphabet;
    unsigned int m_bits;
    unsigned char m_asciiPositions[0x80];
};

} // namespace ZrXmlLib16

#endif
