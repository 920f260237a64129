// SPDX-License-Identifier: MIT
#include "fastinfoset/Octets.h"

#include <gtest/gtest.h>

#include <vector>

using namespace ZrXmlLib16;
using TestSupport::FastInfoset;
using TestSupport::Octets;
using TestSupport::TreeOf;

namespace {

/// What is not plain text, and what becomes of it.
struct Special {
    std::string octets;
    std::wstring inValue;
    std::wstring inText;
    bool endsText;
};

const Special specials[] = {
    {std::string(1, '\0'), std::wstring(1, L'\0'), L"", true},
    {"\r", L"\r", L"", false},
    {"\x80", L"\xFFFD", L"\xFFFD", false},
    {"\xC3\xA9", L"\u00E9", L"\u00E9", false},
    {"\xF0\x9F\x98\x80", L"\xD83D\xDE00", L"\xD83D\xDE00", false},
    {"b", L"b", L"b", false},
};

constexpr std::size_t LONGEST = 40;

/// Calls `check` with a literal of every length that has a special character at every place.
template <class Check> void ForEveryLiteral(Check check)
{
    for (const Special& special : specials) {
        for (std::size_t length = 1; length <= LONGEST; ++length) {
            for (std::size_t at = 0; at < length; ++at) {
                std::string before(at, 'm');
                std::string behind(length - at - 1, 'n');
                SCOPED_TRACE(before + "?" + behind + " with " + std::to_string(&special - specials));
                check(before + special.octets + behind, special, std::wstring(at, L'm'),
                    std::wstring(length - at - 1, L'n'));
            }
        }
    }
}

std::string AddedChunk(const std::string& text)
{
    const char length = static_cast<char>(text.size() < 3 ? text.size() - 1 : text.size() - 3);
    return text.size() < 3 ? static_cast<char>(0x90 | length) + text : std::string("\x92") + length + text;
}

std::string AddedValue(const std::string& text)
{
    const char length = static_cast<char>(text.size() < 9 ? text.size() - 1 : text.size() - 9);
    return text.size() < 9 ? static_cast<char>(0x40 | length) + text : std::string("\x48") + length + text;
}

/// Loads from memory that ends with the octets.
void LoadExactly(CXmlDocument& document, const std::string& octets)
{
    const std::vector<unsigned char> input(octets.begin(), octets.end());
    document.LoadXmlStream(input.data(), input.size());
}

} // namespace

// New, by the index of the local name, and by that of the whole name.
TEST(LiteralText, OfLocalNamesOfEveryLength)
{
    ForEveryLiteral(
        [](const std::string& octets, const Special& special, const std::wstring& before, const std::wstring& behind) {
            const std::string name = static_cast<char>(octets.size() - 1) + octets;
            for (const std::string& rest : {std::string(), std::string(15, 'z')}) {
                CXmlDocument document;
                LoadExactly(document, FastInfoset("3C") + name + Octets("3C 80 F0 00 FF") + rest);
                const CXmlElement* const root = document.GetDocumentElement();
                const CXmlElement* const first = root->GetFirstElement();
                const CXmlElement* const second = first->GetNextSiblingElement();
                for (const CXmlElement* element : {root, first, second}) {
                    EXPECT_TRUE(before + special.inValue + behind == element->GetLocalName());
                }
            }
        });
}

// In blocks where many octets follow, one by one near the end of the input.
TEST(LiteralText, OfElementsOfEveryLength)
{
    ForEveryLiteral(
        [](const std::string& octets, const Special& special, const std::wstring& before, const std::wstring& behind) {
            const std::wstring expected = before + special.inText + (special.endsText ? std::wstring() : behind);
            for (const std::string& rest : {std::string(), std::string(15, 'z')}) {
                CXmlDocument document;
                LoadExactly(document, FastInfoset("3C 00'a'") + AddedChunk(octets) + Octets("00 A0 FF") + rest);
                EXPECT_TRUE(expected == document.GetDocumentElement()->GetText());
                EXPECT_TRUE(expected == document.GetDocumentElement()->GetFirstElement()->GetText());
                // behind other text
                LoadExactly(document, FastInfoset("3C 00'a' 80'x'") + AddedChunk(octets) + Octets("00 A0 FF") + rest);
                EXPECT_TRUE(L"x" + expected == document.GetDocumentElement()->GetText());
                EXPECT_TRUE(expected == document.GetDocumentElement()->GetFirstElement()->GetText());
            }
            // the input ends where the literal does
            EXPECT_EQ(L"Failed to parse FastInfoset. Unexpected End of File.",
                TestSupport::FailureOf(FastInfoset("3C 00'a'") + AddedChunk(octets)));
        });
}

TEST(LiteralText, OfAttributesOfEveryLength)
{
    ForEveryLiteral(
        [](const std::string& octets, const Special& special, const std::wstring& before, const std::wstring& behind) {
            const std::wstring expected = before + special.inValue + behind;
            for (const std::string& rest : {std::string(), std::string(15, 'z')}) {
                CXmlDocument document;
                LoadExactly(document,
                    FastInfoset("7C 00'a' 78 00'x'") + AddedValue(octets) + Octets("F0 40 00 80 FF FF") + rest);
                const CXmlElement& root = *document.GetDocumentElement();
                EXPECT_TRUE(expected == root.GetAttribute(L"x", L""));
                EXPECT_TRUE(expected == root.GetFirstElement()->GetAttribute(L"x", L""));
            }
        });
}

// The text of the element is as long as the entry, but another one.
TEST(LiteralText, EntriesWithCarriageReturnsAreTheirOwn)
{
    EXPECT_EQ(L"a 'xyz' (a 'yz')", TreeOf(FastInfoset("3C 00'a' 80'x' 92 00 0D'yz' 00 A0 FF")));
}

// Once an element has left the tree, nothing is shared any more.
TEST(LiteralText, IsReadAfterElementsWereRemoved)
{
    const std::string octets = FastInfoset("7C 00'a' 78 00'x' 41'12' F0 91'34' 3C 00'b' 80'-' F0"
                                           "40 78 00'y' 41'56' 00 81 F0 91'78' A0 A1 F0 40 01 80 F0 A1 FF")
        + std::string(15, 'z');
    CXmlDocument document([](CXmlElement* element) { return element->GetLocalName() == L"b"; });
    LoadExactly(document, octets);
    EXPECT_EQ(
        L"a @x=12 '34' (a @y=56 @x=56 '783478', a @y=12 '78')", TestSupport::TreeText(document.GetDocumentElement()));
}
