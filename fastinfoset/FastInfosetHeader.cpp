// SPDX-License-Identifier: MIT
#include "fastinfoset/FastInfosetHeader.h"

#include "ZrXmlLib16/FInfoDecl.h"
#include "fastinfoset/EncodedString.h"
#include "fastinfoset/OctetReader.h"
#include "fastinfoset/SkippedItems.h"

#include <cstring>

namespace ZrXmlLib16 {

namespace {

constexpr unsigned char IDENTIFICATION_AND_VERSION[] = {0xE0, 0x00, 0x00, 0x01};
constexpr unsigned long SIGNATURE_LENGTH = sizeof(IDENTIFICATION_AND_VERSION);

bool IsSignature(const unsigned char* bytes, unsigned long length) noexcept
{
    return length >= SIGNATURE_LENGTH && std::memcmp(bytes, IDENTIFICATION_AND_VERSION, SIGNATURE_LENGTH) == 0;
}

void SkipOctetString(OctetReader& input)
{
    input.ReadStringOnBit2(input.Fetch());
}

void SkipInteger(OctetReader& input)
{
    input.ReadIntegerOnBit2(input.Fetch());
}

void SkipAdditionalData(OctetReader& input)
{
    for (std::uint64_t items = input.ReadSequenceLength(); items > 0; --items) {
        SkipOctetString(input); // identifier
        SkipOctetString(input); // data
    }
}

/// An item of a table for attribute values, character chunks or other strings.
void SkipValue(OctetReader& input)
{
    ReadEncodedStringOnBit3(input, input.Fetch());
}

/// An item of a table for qualified names: its parts by their indexes (X.891, C.16).
void SkipNameSurrogate(OctetReader& input)
{
    const unsigned presence = input.Fetch();
    if (presence & 0x02) {
        SkipInteger(input); // prefix
    }
    if (presence & 0x01) {
        SkipInteger(input); // namespace name
    }
    SkipInteger(input); // local name
}

struct Table {
    unsigned presence; // bit in the two octets that tell which tables there are
    void (*skipItem)(OctetReader& input);
};

constexpr unsigned EXTERNAL_VOCABULARY = 0x1000;

/// In the order in which they are transmitted (C.2.5).
constexpr Table TABLES[] = {
    {0x0800, SkipOctetString},   // restricted alphabets
    {0x0400, SkipOctetString},   // encoding algorithms
    {0x0200, SkipOctetString},   // prefixes
    {0x0100, SkipOctetString},   // namespace names
    {0x0080, SkipOctetString},   // local names
    {0x0040, SkipOctetString},   // other names without colon
    {0x0020, SkipOctetString},   // other URIs
    {0x0010, SkipValue},         // attribute values
    {0x0008, SkipValue},         // content character chunks
    {0x0004, SkipValue},         // other strings
    {0x0002, SkipNameSurrogate}, // element names
    {0x0001, SkipNameSurrogate}, // attribute names
};

// kept: required behaviour. A transmitted vocabulary is not used, and the name of an external one is not compared.
void SkipInitialVocabulary(OctetReader& input)
{
    const unsigned high = input.Fetch();
    const unsigned presence = high << 8 | input.Fetch();
    if (presence & EXTERNAL_VOCABULARY) {
        SkipOctetString(input);
    }
    for (const Table& table : TABLES) {
        if (presence & table.presence) {
            for (std::uint64_t items = input.ReadSequenceLength(); items > 0; --items) {
                table.skipItem(input);
            }
        }
    }
}

void RequireTerminator(unsigned char octet)
{
    if (octet != TERMINATOR) {
        ThrowFastInfosetFailure(FastInfosetReaderMessages::INVALID_ELEMENT);
    }
}

/// C.11
void SkipNotations(OctetReader& input)
{
    unsigned char octet = input.Fetch();
    for (; (octet & 0xFC) == 0xC0; octet = input.Fetch()) {
        SkipIdentifyingString(input); // name
        SkipIdentifiers(input, octet);
    }
    RequireTerminator(octet);
}

/// C.10
void SkipUnparsedEntities(OctetReader& input)
{
    unsigned char octet = input.Fetch();
    for (; (octet & 0xFE) == 0xD0; octet = input.Fetch()) {
        SkipIdentifyingString(input); // name
        SkipIdentifyingString(input); // system identifier
        if (octet & 0x01) {
            SkipIdentifyingString(input); // public identifier
        }
        SkipIdentifyingString(input); // notation name
    }
    RequireTerminator(octet);
}

} // namespace

unsigned long GetFastInfosetSignatureLength(const unsigned char* bytes, unsigned long length) noexcept
{
    if (length < SIGNATURE_LENGTH) {
        return 0;
    }
    if (bytes[0] == IDENTIFICATION_AND_VERSION[0]) {
        return IsSignature(bytes, length) ? SIGNATURE_LENGTH : 0;
    }
    if (bytes[0] != '<' || bytes[1] != '?') {
        return 0;
    }
    for (const char* const declaration : FI_DECLARATION_LIST) {
        const unsigned long size = std::strlen(declaration);
        if (length > size && std::memcmp(bytes, declaration, size) == 0) {
            return IsSignature(bytes + size, length - size) ? size + SIGNATURE_LENGTH : 0;
        }
    }
    return 0;
}

void SkipOptionalComponents(OctetReader& input)
{
    struct Component {
        unsigned char presence;
        void (*skip)(OctetReader& input);
    };
    constexpr Component COMPONENTS[] = {
        {0x40, SkipAdditionalData}, {0x20, SkipInitialVocabulary}, {0x10, SkipNotations}, {0x08, SkipUnparsedEntities},
        {0x04, SkipOctetString},                             // character encoding scheme
        {0x02, [](OctetReader& octets) { octets.Fetch(); }}, // standalone
        {0x01, SkipStringOrIndex},                           // version
    };
    const unsigned char presence = input.Fetch();
    for (const Component& component : COMPONENTS) {
        if (presence & component.presence) {
            component.skip(input);
        }
    }
}

} // namespace ZrXmlLib16
