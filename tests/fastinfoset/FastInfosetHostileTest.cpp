// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FastInfosetContext.h"
#include "fastinfoset/Octets.h"
#include "support/TestText.h"

#include <algorithm>
#include <vector>

using namespace ZrXmlLib16;
using TestSupport::BigEndian;
using TestSupport::FailureOf;
using TestSupport::FastInfoset;
using TestSupport::Narrow;
using TestSupport::Octets;
using TestSupport::TreeOf;

namespace {

constexpr wchar_t UNEXPECTED_END[] = L"Failed to parse FastInfoset. Unexpected End of File.";
constexpr wchar_t LENGTH_ON_BIT_2[] =
    L"Failed to parse FastInfoset. Invalid NonEmptyOctetString type  on the second bit of an octet.";
constexpr wchar_t LENGTH_ON_BIT_5[] =
    L"Failed to parse FastInfoset. Invalid NonEmptyOctetString type  on the fifth bit of an octet.";
constexpr wchar_t INTEGER_ON_BIT_2[] =
    L"Failed to parse FastInfoset. Invalid Encoding of integers 1 To 2^20 type  on the second bit of an octet.";
constexpr wchar_t INTEGER_OR_ZERO_ON_BIT_2[] =
    L"Failed to parse FastInfoset. Invalid Encoding of integers 0 To 2^20 type  on the second bit of an octet.";
constexpr wchar_t INTEGER_ON_BIT_3[] =
    L"Failed to parse FastInfoset. Invalid Encoding of integers 1 To 2^20 type  on the third bit of an octet.";
constexpr wchar_t INTEGER_ON_BIT_4[] =
    L"Failed to parse FastInfoset. Invalid Encoding of integers 1 To 2^20 type  on the fourth bit of an octet.";
constexpr wchar_t INVALID_ALPHABET[] = L"Failed to parse FastInfoset. Invalid Encoding of Restricted Alphabet. "
                                       L"Alphabet must contain between 2 and 2^20 characters.";
constexpr wchar_t PREFIX_WITHOUT_NAMESPACE[] =
    L"Failed to parse FastInfoset. Invalid QName type Prefix without Namespace.";
constexpr wchar_t INVALID_ELEMENT[] = L"Failed to parse FastInfoset. Invalid Encoding of Element type.";

struct Case {
    const char* octets;
    const wchar_t* message;
};

/// A document with everything that documents may contain, header included.
std::string RichDocument()
{
    return Octets("E0 00 00 01 77 00 00'i' 00'd' 10 80 02'urn' 00 00'n' C1 00'n' 00'p' F0 02'fin' 01 02'1.0'"
                  "E2 00'c' C7 00's' 00'p' E1 00't' 00'd' F0 E1 80 80"
                  "78 CD 02'urn' CF 00'p' 02'uri' F0 3D 81 00'a' 78 00'x' 41'v1' 7B 81 82 00'y' 80 F0"
                  "90'x' 83 00 00 00 02")
        + std::string(261, 'y')
        + Octets("C8 00'e' E2 00'c'"
                 "40 00 60 14 20 20 A0 1A 31 78 00'z' 70 23 FF FE 00 07 F0 A0 8C 14 38 86 01 00'x' 20 AC F0"
                 "3F 81 82 00'b' 00 01 FF 88 04 12 F0 80'z' F0 F0");
}

} // namespace

TEST(FastInfosetHostile, keeps_TheMessageOfEveryFailure)
{
    const Case rows[] = {
        // where an element or content is expected
        {"", UNEXPECTED_END},
        {"F0", UNEXPECTED_END},
        {"FF", UNEXPECTED_END},
        {"E2 00'c' F0", UNEXPECTED_END},
        {"C4 FF", UNEXPECTED_END},
        {"C4 E2", INVALID_ELEMENT},
        {"80'x'", INVALID_ELEMENT},
        {"C8 00'e'", INVALID_ELEMENT},
        {"3C 00'a' C4", INVALID_ELEMENT},
        {"3C 00'a' C0", INVALID_ELEMENT},
        {"3C 00'a' CC", INVALID_ELEMENT},
        {"3C 00'a' D0", INVALID_ELEMENT},
        {"3C 00'a' E0", INVALID_ELEMENT},
        {"3C 00'a' E3", INVALID_ELEMENT},
        {"3C 00'a' F1", INVALID_ELEMENT},
        {"3C 00'a' FE", INVALID_ELEMENT},
        {"3C 00'a' 3C 00'b' F0", UNEXPECTED_END},
        // how lists end
        {"38 FF", INVALID_ELEMENT},
        {"38 C8", INVALID_ELEMENT},
        {"38 CC 3C 00'a' F0", INVALID_ELEMENT},
        {"7C 00'a' F1", INVALID_ELEMENT},
        {"7C 00'a' 80", INVALID_ELEMENT},
        {"7C 00'a' 78 00'x' 00'1' CC", INVALID_ELEMENT},
        // names
        {"3E 00'p' 00'a'", PREFIX_WITHOUT_NAMESPACE},
        {"3E", PREFIX_WITHOUT_NAMESPACE},
        {"7C 00'a' 7A 00'p' 00'x'", PREFIX_WITHOUT_NAMESPACE},
        {"3C 70", LENGTH_ON_BIT_2},
        {"3C 41", LENGTH_ON_BIT_2},
        {"3C F0", INTEGER_ON_BIT_2},
        {"7C 00'a' 7C", INTEGER_ON_BIT_2},
        {"7C 00'a' 6F FF FF", INTEGER_ON_BIT_2}, // above 2^20
        {"34", INTEGER_ON_BIT_3},
        {"38 F0 38", INTEGER_ON_BIT_3},
        {"30 0F FF FF", INTEGER_ON_BIT_3},
        {"33 00 00 00", INTEGER_ON_BIT_3},
        // values and chunks
        {"7C 00'a' 78 00'x' 0A", LENGTH_ON_BIT_5},
        {"7C 00'a' 78 00'x' 0D", LENGTH_ON_BIT_5},
        {"7C 00'a' 78 00'x' F7", INTEGER_OR_ZERO_ON_BIT_2},
        {"7C 00'a' 78 00'x' EF FF FF", INTEGER_OR_ZERO_ON_BIT_2},
        {"3C 00'a' BC", INTEGER_ON_BIT_4},
        {"3C 00'a' B8 0F FF FF", INTEGER_ON_BIT_4},
        {"3C 00'a' BB 00 00 00", INTEGER_ON_BIT_4},
        {"E2 0A", LENGTH_ON_BIT_5},
        {"E2 F7", INTEGER_OR_ZERO_ON_BIT_2},
        {"E1 70", LENGTH_ON_BIT_2},
        {"E1 F0", INTEGER_ON_BIT_2},
        // alphabets and algorithms
        {"3C 00'a' 88 20 11", INVALID_ALPHABET}, // number 9
        {"3C 00'a' 88 08 11", INVALID_ALPHABET},
        {"7C 00'a' 78 00'x' 20 20 11", INVALID_ALPHABET},
        {"3C 00'a' 8C 24 11", L"Unknown byte encoding."},
        {"7C 00'a' 78 00'x' 3F F0 11", L"Unknown byte encoding."},
        {"3C 00'a' 8C 0A 00 01 02 03", L"Invalid value for SHORT byte encoding."},
    };
    for (const Case& row : rows)
        EXPECT_EQ(Narrow(row.message), Narrow(FailureOf(FastInfoset(row.octets)))) << row.octets;
}

TEST(FastInfosetHostile, IndexesBehindTheTablesAreRefused)
{
    const Case rows[] = {
        {"00", INTEGER_ON_BIT_3},
        {"3C 00'a' 01", INTEGER_ON_BIT_3},
        {"3C 80", INTEGER_ON_BIT_2},
        {"3C 00'a' 3C 81", INTEGER_ON_BIT_2},
        {"3D 81", INTEGER_ON_BIT_2},
        {"3D 00'u' 00'a' 3D 82", INTEGER_ON_BIT_2},
        {"3F 81", INTEGER_ON_BIT_2},
        {"3F 00'p' 00'u' 00'a' 3F 82", INTEGER_ON_BIT_2},
        {"38 CE 81", INTEGER_ON_BIT_2},
        {"38 CD 81", INTEGER_ON_BIT_2},
        {"7C 00'a' 00", INTEGER_ON_BIT_2},
        {"7C 00'a' 78 00'x' 80", INTEGER_OR_ZERO_ON_BIT_2},
        {"7C 00'a' 78 00'x' 40'1' 78 00'y' 81", INTEGER_OR_ZERO_ON_BIT_2},
        {"7C 00'a' 78 00'x' 00'1' 78 00'y' 80", INTEGER_OR_ZERO_ON_BIT_2}, // not entered
        {"3C 00'a' A0", INTEGER_ON_BIT_4},
        {"3C 00'a' 90'x' A1", INTEGER_ON_BIT_4},
        {"3C 00'a' 80'x' A0", INTEGER_ON_BIT_4},
    };
    for (const Case& row : rows)
        EXPECT_EQ(Narrow(row.message), Narrow(FailureOf(FastInfoset(row.octets)))) << row.octets;
}

TEST(FastInfosetHostile, LengthsBeyondTheInputAreRefused)
{
    const char* const rows[] = {"3C 60 FF FF FF FF", "3C 60 FF FF FF FE'x'", "3C 40 FF'x'", "3C 3F'x'",
        "7C 00'a' 78 00'x' 0C FF FF FF FF", "7C 00'a' 78 00'x' 1C 7F FF FF FF 00'x'", "3C 00'a' 83 FF FF FF FF",
        "3C 00'a' 8B 03 FF FF FF FF", "3C 00'a' 8F 03 FF FF FF FF", "3C 00'a' 93 80 00 00 00'x'", "E2 0C FF FF FF FF"};
    for (const char* const row : rows)
        EXPECT_EQ(UNEXPECTED_END, FailureOf(FastInfoset(row))) << row;
}

TEST(FastInfosetHostile, EveryTruncationIsRefused)
{
    const std::string octets = RichDocument();
    const std::wstring tree = TreeOf(octets);
    EXPECT_NE(std::wstring::npos, tree.find(L"z"));
    // The end of the document, which stands in the last octet, is not needed.
    EXPECT_EQ(tree, TreeOf(octets.substr(0, octets.size() - 1)));
    for (std::size_t length = 4; length < octets.size() - 1; ++length)
        EXPECT_EQ(UNEXPECTED_END, FailureOf(octets.substr(0, length))) << length;
}

TEST(FastInfosetHostile, EveryChangedOctetIsReadOrRefused)
{
    const std::wstring beginning = L"Failed to parse FastInfoset. ";
    const std::string octets = RichDocument();
    for (std::size_t position = 4; position < octets.size(); ++position) {
        std::string changed = octets;
        for (int value = 0; value < 256; ++value) {
            changed[position] = static_cast<char>(value);
            const std::wstring message = FailureOf(changed);
            if (!message.empty() && message.compare(0, beginning.size(), beginning) != 0
                && message.find(L"byte encoding.") == std::wstring::npos)
                ADD_FAILURE() << "octet " << value << " at " << position << ": " << Narrow(message);
        }
    }
}

TEST(FastInfosetHostile, AMillionNestedElements)
{
    constexpr std::size_t DEPTH = 1000000;
    const std::string nested = FastInfoset("3C 00'a'") + std::string(DEPTH - 1, '\0');
    {
        CXmlDocument document;
        TestSupport::LoadOctets(document, nested + std::string(DEPTH / 2, '\xFF'));
        std::size_t depth = 0;
        for (const CXmlElement* element = document.GetDocumentElement(); element; element = element->GetFirstElement())
            ++depth;
        EXPECT_EQ(DEPTH, depth);
    }
    EXPECT_EQ(UNEXPECTED_END, FailureOf(nested));
    EXPECT_EQ(UNEXPECTED_END, FailureOf(nested + std::string(DEPTH - 1, '\xF0')));
}

TEST(FastInfosetHostile, IndexedTextIsLimited)
{
    // 2^20 characters once, and then by an index of one octet: 64 times are allowed whatever the size of the input.
    constexpr unsigned long LENGTH = 1 << 20;
    const std::string length = BigEndian(LENGTH - 259, 4);
    const std::string chunk = FastInfoset("3C 00'a' 3C 00'b' 93") + length + std::string(LENGTH, 'x') + '\xF0';
    const std::string names = FastInfoset("3C 00'a' 38 CD 60") + BigEndian(LENGTH - 321, 4) + std::string(LENGTH, 'u')
        + Octets("F0 3D 81 00'b' F0");
    struct {
        std::string beginning;
        std::string indexed;
        int allowed;
    } const rows[] = {
        {chunk, Octets("01 A0 F0"), 100},
        {FastInfoset("7C 00'a' 78 00'x' 4C") + BigEndian(LENGTH - 265, 4) + std::string(LENGTH, 'x') + Octets("F0"),
            Octets("40 00 80 FF"), 100},
        {names, Octets("38 CD 81 F0 01 F0"), 99},
        {names, Octets("3D 81 81 F0"), 99},
    };
    for (const auto& row : rows) {
        for (const int times : {row.allowed, row.allowed + 2}) {
            CXmlDocument document([](CXmlElement*) { return true; });
            std::string octets = row.beginning;
            for (int i = 0; i < times; ++i)
                octets += row.indexed;
            std::wstring message;
            try {
                TestSupport::LoadOctets(document, octets + '\xFF');
            } catch (const CZrException& exception) {
                message = exception.GetMessage();
            }
            const std::wstring beginning = L"Failed to parse FastInfoset. Indexed text exceeds the limit of [";
            EXPECT_EQ(times != row.allowed, message.compare(0, beginning.size(), beginning) == 0)
                << times << Narrow(message);
            EXPECT_EQ(times == row.allowed, message.empty());
        }
    }
}

TEST(FastInfosetHostile, TablesStopGrowing)
{
    // As many names as the tables hold, and one more, which is used but not entered. Then the last entry once more.
    static std::vector<std::wstring> lastNames;
    lastNames.assign(3, std::wstring());
    CXmlDocument document([](CXmlElement* element) {
        std::rotate(lastNames.begin(), lastNames.begin() + 1, lastNames.end());
        lastNames.back() = element->GetLocalName();
        return true;
    });
    std::string octets = FastInfoset("3C 02'aaa'");
    for (unsigned long i = 2; i <= 1048577; ++i)
        octets +=
            std::string("\x3C\x02") + BigEndian(0x212121 + (i / 4096 << 16 | i / 64 % 64 << 8 | i % 64), 3) + '\xF0';
    octets += Octets("30 07 F7 DF F0");
    const std::wstring message = TestSupport::MessageOf<CZrException>(
        [&] { TestSupport::LoadOctets(document, octets + Octets("30 07 F7 E0")); });
    EXPECT_EQ(INTEGER_ON_BIT_3, message);
    EXPECT_NE(lastNames[0], lastNames[1]);
    EXPECT_EQ(lastNames[0], lastNames[2]);
}
