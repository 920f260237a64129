// SPDX-License-Identifier: MIT
#ifndef FASTINFOSET_ENCODEDSTRING_H
#define FASTINFOSET_ENCODEDSTRING_H

#include "fastinfoset/OctetReader.h"

#include <string>

namespace ZrXmlLib16 {

class CFIVocabulary;

/// An encoded character string (X.891, 7.17), still as octets inside the input.
struct EncodedString {
    enum Encoding : unsigned char { Utf8 = 0, Utf16BE = 1, RestrictedAlphabet = 2, EncodingAlgorithm = 3 };

    Encoding encoding;
    unsigned number; // of the alphabet or algorithm
    OctetString content;
};

/// Read an encoded character string that starts on the third (C.19) or fifth (C.20) bit of the octet.
EncodedString ReadEncodedStringOnBit3(OctetReader& input, unsigned char first);
EncodedString ReadEncodedStringOnBit5(OctetReader& input, unsigned char first);

/// Append what the string says to a text.
/// @param vocabulary has the restricted alphabets.
/// @throws CZrException for an alphabet or algorithm that does not exist or does not fit the octets; what was appended
/// then is undefined.
void AppendEncodedString(std::wstring& text, const EncodedString& string, const CFIVocabulary& vocabulary);
/// Alphabets of 8 to 15 characters take four bits for each, those of 128 to 255 an octet.
void AppendRestrictedAlphabet(std::wstring& text, OctetString content, const std::wstring& alphabet);

} // namespace ZrXmlLib16

#endif
