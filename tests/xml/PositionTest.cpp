// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Utf8.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrZip.h"
#include "xml/TreeText.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace ZrXmlLib16;

namespace {

std::string PositionOf(const CXmlElement& element)
{
    return std::to_string(element.GetLine()) + ":" + std::to_string(element.GetColumn());
}

/// "name line:column" of an element and all inside it, in document order.
std::string Positions(const CXmlElement* element)
{
    std::string text;
    for (; element; element = element->GetNextSiblingElement()) {
        text += (text.empty() ? "" : " ") + ToUtf8(element->GetLocalName()) + " " + PositionOf(*element);
        if (element->GetFirstElement())
            text += " " + Positions(element->GetFirstElement());
    }
    return text;
}

std::string PositionsIn(const std::string& bytes)
{
    CXmlDocument document;
    ReadXml(document, bytes);
    return Positions(document.GetDocumentElement());
}

enum class Encoding { Utf8, LittleEndian, BigEndian };

std::string Encoded(const std::u16string& text, Encoding encoding)
{
    std::string bytes;
    for (const char16_t unit : text) {
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8);
        bytes += encoding == Encoding::LittleEndian ? std::string{low, high} : std::string{high, low};
    }
    return bytes;
}

std::string Encoded(const std::string& ascii, Encoding encoding)
{
    return encoding == Encoding::Utf8 ? ascii : Encoded(std::u16string(ascii.begin(), ascii.end()), encoding);
}

/// What PositionsIn says of an ASCII document without declarations, found by looking at every character.
std::string ExpectedPositions(const std::string& text)
{
    std::string expected;
    unsigned line = 1;
    unsigned column = 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = i + 1 < text.size() ? text[i + 1] : ' ';
        if (text[i] == '<' && next != '/' && next != '!') {
            expected += (expected.empty() ? "" : " ") + std::string(1, next) + " " + std::to_string(line) + ":"
                + std::to_string(column);
        }
        ++column;
        if (text[i] == '\n' || (text[i] == '\r' && next != '\n')) {
            ++line;
            column = 1;
        }
    }
    return expected;
}

} // namespace

TEST(Position, OfEveryElement)
{
    const std::pair<std::string, const char*> cases[] = {
        {"<r/>", "r 1:1"},
        {"<r>\n  <a>x</a><b\n y='1'/>\n\n<c/></r>", "r 1:1 a 2:3 b 2:11 c 5:1"},
        {"<r>\r\n <a/>\r\n\r\n<b/></r>", "r 1:1 a 2:2 b 4:1"},
        {"<r>\r <a/>\r\r<b/></r>", "r 1:1 a 2:2 b 4:1"},
        {"<r>\r\n\n\r\r\n<a/></r>", "r 1:1 a 5:1"},
        {"\xEF\xBB\xBF<r>\n<a/></r>", "r 1:1 a 2:1"},
        {"<?xml version='1.0'?>\n<!-- a\n <comment/> -->\n <r/>", "r 4:2"},
        {"<r n='1&#10;2\n3'><![CDATA[\n<x/>\n]]><a/></r>", "r 1:1 a 4:4"},
        // octets of UTF-8, not characters
        {"<r>\xC3\xA9\xE2\x82\xAC\n\xC3\xA9<a/></r>", "r 1:1 a 2:3"},
        {"<?xml version='1.0' encoding='ISO-8859-1'?>\n<r>\xE9<a/></r>", "r 2:1 a 2:5"},
        {"<!DOCTYPE r [<!ENTITY e '\n\n<b><c/></b>'>]>\n<r>\n &e;<a/></r>", "r 4:1 b 5:2 c 5:2 a 5:5"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row.second, PositionsIn(row.first)) << row.first;
}

TEST(Position, EveryRunOfLineEndsInEveryEncoding)
{
    const std::string characters = "\n\r ";
    for (int number = 0; number < 3 * 3 * 3 * 3 * 3; ++number) {
        std::string run;
        for (int rest = number; rest > 0; rest /= 3)
            run += characters[static_cast<std::size_t>(rest % 3)];
        const std::string text = "<!--" + run + "--><r>" + run + "<a>" + run + "</a" + run + "><b/></r>";
        const std::string expected = ExpectedPositions(text);
        EXPECT_EQ(expected, PositionsIn(text)) << number;
        EXPECT_EQ(expected, PositionsIn("\xFF\xFE" + Encoded(text, Encoding::LittleEndian))) << number;
        EXPECT_EQ(expected, PositionsIn("\xFE\xFF" + Encoded(text, Encoding::BigEndian))) << number;
        EXPECT_EQ(expected, PositionsIn(Encoded(text, Encoding::LittleEndian))) << number;
        EXPECT_EQ(expected, PositionsIn(Encoded(text, Encoding::BigEndian))) << number;
    }
}

// Gurmukhi and Malayalam letters have the octets of line ends in them, and so have pairs of letters.
TEST(Position, OctetsOfLineEndsInsideUtf16)
{
    const std::u16string text = u"<r>\u0A0A\u0D0D\u0A05\u050A\u0D05\u050D\u010A\u0A01<a/>\u0A0A\n\u0A0A<b/></r>";
    for (const Encoding encoding : {Encoding::LittleEndian, Encoding::BigEndian})
        EXPECT_EQ("r 1:1 a 1:12 b 2:2", PositionsIn(Encoded(text, encoding)));
    CXmlDocument document;
    document.LoadXml(L"<r>\u0A0A\n\u20AC<a/></r>");
    EXPECT_EQ("r 1:1 a 2:2", Positions(document.GetDocumentElement()));
}

// The parser gets four megabytes at a time.
TEST(Position, AcrossTheParsersSlices)
{
    constexpr std::size_t SLICE = 4 << 20;
    for (std::size_t length = SLICE - 12; length < SLICE + 2; ++length) {
        const std::string text =
            "<r>" + std::string(length - 3, ' ') + "\r\n<a/>\r<b/>\n" + std::string(SLICE, '\n') + "<c/></r>";
        EXPECT_EQ(ExpectedPositions(text), PositionsIn(text)) << length;
    }
    const std::string longTag = "<r>\n<a n='" + std::string(3 * SLICE, '\n') + "'/><b/></r>";
    EXPECT_EQ(ExpectedPositions(longTag), PositionsIn(longTag));
}

TEST(Position, UnknownWithoutXmlText)
{
    CXmlDocument document;
    ReadJson(document, "{\n\"r\": {\"a\": \"1\"}}");
    EXPECT_EQ("r 0:0 a 0:0", Positions(document.GetDocumentElement()));
    ReadXml(document, "<r>\n<a/></r>");
    EXPECT_EQ("r 1:1 a 2:1", Positions(document.GetDocumentElement()));
    document.GetDocumentElement()->CreateNewChildElement()->SetElementName(L"made");
    EXPECT_EQ("r 1:1 a 2:1 made 0:0", Positions(document.GetDocumentElement()));

    const CXmlElement alone(&document, nullptr);
    EXPECT_EQ("0:0", PositionOf(alone));
    EXPECT_EQ(&document, alone.GetDocument());
}

TEST(Position, SurvivesTheDocumentAndCompression)
{
    std::unique_ptr<CXmlElement> taken;
    {
        const std::string text = "<r>\n <a/>" + std::string(1000, ' ') + "</r>";
        CBinaryData bytes;
        bytes.Append(reinterpret_cast<const unsigned char*>(text.data()), text.length());
        CZrZip::CompressData(bytes, Compression_GZip);
        CXmlDocument document;
        document.LoadXmlStream(bytes.GetData(), bytes.GetLength());
        taken.reset(document.GetDocumentElement()->RemoveLastChildElement());
        EXPECT_EQ(&document, taken->GetDocument());
    }
    EXPECT_EQ("2:2", PositionOf(*taken));
}

TEST(Position, ElementsThatAreFreedEarly)
{
    static std::string seen;
    seen.clear();
    CXmlDocument document([](CXmlElement* element) {
        seen += PositionOf(*element) + " ";
        return true;
    });
    ReadXml(document, "<r>\n<a>\n <b/></a>\n<a/>\n</r>");
    EXPECT_EQ("3:2 2:1 4:1 1:1 ", seen);
}

TEST(Position, OfTextThatIsNotWellFormed)
{
    const struct {
        const char* text;
        unsigned long line;
        unsigned long column;
    } cases[] = {
        {"<a>\n<b>\n</a>", 3, 3},
        {"<a>\r\n \xC3\xA9<b n=></a>", 2, 9},
        {"<a/>\n<b/>", 2, 1},
        {"<a>\n &undefined;</a>", 2, 2},
        {"\xEF\xBB\xBF\x01", 1, 1},
    };
    for (const auto& row : cases) {
        CXmlDocument document;
        try {
            document.LoadXml(row.text);
            ADD_FAILURE() << row.text;
        } catch (const CZrException& exception) {
            EXPECT_EQ(row.line, exception.GetLine()) << row.text;
            EXPECT_NE(std::wstring::npos, exception.GetMessage().find(L" at line " + std::to_wstring(row.line)));
            EXPECT_EQ(row.column, exception.GetColumn()) << row.text;
        }
    }
}
