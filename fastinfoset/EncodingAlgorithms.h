// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_ENCODINGALGORITHMS_H
#define FASTINFOSET_ENCODINGALGORITHMS_H

#include <string>
#include <vector>

namespace ZrXmlLib16 {

/// The built-in encoding algorithms by their vocabulary index (X.891, 10).
namespace EncodingAlgorithms {

enum Number : unsigned long {
    Hexadecimal = 1,
    Base64 = 2,
    Short = 3,
    Int = 4,
    Long = 5,
    Boolean = 6,
    Float = 7,
    Double = 8,
    Uuid = 9,
    Cdata = 10
};

/// Replaces the octets by those of one value; nothing is trimmed.
/// @throws CZrException for an unknown algorithm, and what the conversion of the value throws.
void Encode(unsigned long algorithm, const std::wstring& text, std::vector<unsigned char>& octets);

/// Appends the lexical forms of all values in the octets, with a blank between two.
/// @throws CZrException for an unknown algorithm, cdata included, and for a length that is not one of whole values;
/// nothing is appended then.
void AppendDecoded(unsigned long algorithm, const unsigned char* octets, unsigned long length, std::wstring& text);

} // namespace EncodingAlgorithms
} // namespace ZrXmlLib16

#endif
