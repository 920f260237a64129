// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FInfoDecl.h"
#include "ZrXmlLib16/FastInfosetReader.h"
#include "fastinfoset/Octets.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using TestSupport::BigEndian;
using TestSupport::FailureOf;
using TestSupport::Octets;
using TestSupport::TreeOf;

namespace {

const std::string SIGNATURE = Octets("E0 00 00 01");
const std::string BODY = Octets("3C 00'a' FF");

constexpr wchar_t UNEXPECTED_END[] = L"Failed to parse FastInfoset. Unexpected End of File.";
constexpr wchar_t INVALID_ELEMENT[] = L"Failed to parse FastInfoset. Invalid Encoding of Element type.";

bool HasHeader(const std::string& octets)
{
    const std::string copy(octets.begin(), octets.end());
    return CFastInfosetReader::HasHeader(reinterpret_cast<const unsigned char*>(copy.data()), copy.size());
}

} // namespace

TEST(FastInfosetHeader, IsFoundWithAndWithoutADeclaration)
{
    EXPECT_TRUE(HasHeader(SIGNATURE));
    EXPECT_EQ(L"a", TreeOf(SIGNATURE + '\0' + BODY));
    for (const std::string declaration : FI_DECLARATION_LIST) {
        SCOPED_TRACE(declaration);
        EXPECT_TRUE(HasHeader(declaration + SIGNATURE));
        EXPECT_EQ(L"a", TreeOf(declaration + SIGNATURE + '\0' + BODY));
        for (std::size_t length = 0; length < declaration.size() + SIGNATURE.size(); ++length)
            EXPECT_FALSE(HasHeader((declaration + SIGNATURE).substr(0, length))) << length;
        EXPECT_FALSE(HasHeader(declaration + "<a xmlns='finf'/>"));
        EXPECT_FALSE(HasHeader(declaration + ' ' + SIGNATURE));
        EXPECT_FALSE(HasHeader(declaration + Octets("E0 00 00 02")));
    }
    for (const char* const other : {"", "E0", "E0 00 00", "E0 00 00 02", "E1 00 00 01", "00 E0 00 00 01", "'<a/>'",
             "'<?xml version=\"1.0\" encoding=\"finf\"?>' E0 00 00 01", "'<?' E0 00 00 01"})
        EXPECT_FALSE(HasHeader(Octets(other))) << other;
}

TEST(FastInfosetHeader, TextIsReadAsXml)
{
    EXPECT_EQ(L"a", TreeOf("<?xml version='1.0'?><a/>"));
    EXPECT_EQ(L"a", TreeOf(" <a/>"));
    EXPECT_NE(L"", FailureOf("<?xml version='1.0' encoding='finf'?><a/>"));
    EXPECT_NE(L"", FailureOf(SIGNATURE.substr(0, 3) + "x"));
}

TEST(FastInfosetHeader, OptionalComponentsArePassedOver)
{
    struct {
        const char* components;
        const char* purpose;
    } const rows[] = {
        {"00", "none"},
        {"40 00 00'i' 02'abc'", "one additional datum"},
        {"40 01 00'i' 00'd' 01'jj' 40 00'0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdefD'",
            "two, one of 65 octets"},
        {"20 00 00", "an empty vocabulary"},
        {"20 10 00 02'urn'", "an external vocabulary"},
        {"20 08 00 01 01'ab' 02'cde'", "restricted alphabets"},
        {"20 04 00 00 02'urn'", "an encoding algorithm"},
        {"20 02 00 00 00'p'", "a prefix"},
        {"20 01 00 00 00'n'", "a namespace"},
        {"20 00 80 02 00'a' 00'b' 00'c'", "local names"},
        {"20 00 60 00 00'a' 00 00'b'", "other names and URIs"},
        {"20 00 10 01 00'v' 01'vw'", "attribute values"},
        {"20 00 08 00 11 00'v'", "a chunk in UTF-16"},
        {"20 00 04 01 20 01 12 34 30 00'x'", "strings with an alphabet and an algorithm"},
        {"20 00 02 03 00 00 01 81 82 03 80 40 05 00 00 00", "element names"},
        {"20 00 01 00 00 60 01 02", "an attribute name"},
        {"20 1F FF 00'e' 00 00'a' 00 00'b' 00 00'c' 00 00'd' 00 00'e' 00 00'f' 00 00'g' 00 00'h' 00 00'i' 00 00'j'"
         "00 00 00 00 00 00",
            "all tables"},
        {"10 C0 00'n' C2 00'n' 00's' C1 80 80 C3 00'n' 00's' 00'p' F0", "notations"},
        {"08 D0 00'n' 00's' 00't' D1 80 00's' 00'p' 80 F0", "unparsed entities"},
        {"04 04'UTF-8'", "a character encoding scheme"},
        {"02 01", "standalone"},
        {"01 02'1.0'", "a version"},
        {"01 FF", "an empty version"},
        {"7F 00 00'i' 00'd' 00 00 F0 F0 00'c' 00 00'v'", "all components"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.purpose);
        const std::string header = SIGNATURE + Octets(row.components);
        EXPECT_EQ(L"a", TreeOf(header + BODY));
        for (std::size_t length = SIGNATURE.size(); length < header.size(); ++length)
            EXPECT_EQ(UNEXPECTED_END, FailureOf(header.substr(0, length))) << length;
    }
}

TEST(FastInfosetHeader, LongSequencesArePassedOver)
{
    for (const unsigned long items : {128ul, 129ul, 130ul, 600ul, 129ul + 0xFFFF, 129ul + 0x10000, 1048576ul}) {
        std::string octets = SIGNATURE + Octets("20 00 80");
        octets += items <= 128 ? BigEndian(items - 1, 1) : BigEndian(0x800000 | (items - 129), 3);
        for (unsigned long item = 0; item < items; ++item)
            octets += std::string("\0n", 2);
        EXPECT_EQ(L"a", TreeOf(octets + BODY)) << items;
    }
}

TEST(FastInfosetHeader, keeps_IgnoringATransmittedVocabulary)
{
    EXPECT_EQ(L"a @x=1 'bb' (a @x=1)",
        TreeOf(SIGNATURE + Octets("20 00 9A 00 00'l' 00 00'v' 00 00'c' 00 00 00")
            + Octets("7C 00'a' 78 00'x' 40'1' F0 90'b' A0 40 00 80 FF F0")));
}

TEST(FastInfosetHeader, BrokenComponentsAreRefused)
{
    struct {
        const char* components;
        const wchar_t* message;
    } const rows[] = {
        {"10 C0 00'n' FF", INVALID_ELEMENT},
        {"10 D0", INVALID_ELEMENT},
        {"08 C0", INVALID_ELEMENT},
        {"08 FF", INVALID_ELEMENT},
        {"04 7E", L"Failed to parse FastInfoset. Invalid NonEmptyOctetString type  on the second bit of an octet."},
        {"20 00 04 00 0A",
            L"Failed to parse FastInfoset. Invalid NonEmptyOctetString type  on the fifth bit of an octet."},
        {"20 00 02 00 00 7C",
            L"Failed to parse FastInfoset. Invalid Encoding of integers 1 To 2^20 type  on the second bit of an "
            L"octet."},
        {"01 FE",
            L"Failed to parse FastInfoset. Invalid Encoding of integers 0 To 2^20 type  on the second bit of an "
            L"octet."},
        {"20 00 80 8F FF FF 00'n'", UNEXPECTED_END}, // a million names announced
        {"04 60 FF FF FF FF", UNEXPECTED_END},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.message, FailureOf(SIGNATURE + Octets(row.components))) << row.components;
}
