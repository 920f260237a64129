// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FastInfosetReader.h"
#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/ZrZip.h"
#include "fastinfoset/Octets.h"
#include "support/TestText.h"

#include <map>
#include <stdexcept>
#include <vector>

using namespace ZrXmlLib16;
using TestSupport::BigEndian;
using TestSupport::FailureOf;
using TestSupport::FastInfoset;
using TestSupport::MessageOf;
using TestSupport::Narrow;
using TestSupport::Octets;
using TestSupport::TreeOf;

namespace {

struct Case {
    const char* octets;
    const wchar_t* tree;
};

void ExpectTrees(const Case* begin, const Case* end)
{
    for (const Case* row = begin; row != end; ++row) {
        SCOPED_TRACE(row->octets);
        EXPECT_EQ(Narrow(row->tree), Narrow(TreeOf(FastInfoset(row->octets))));
    }
}

template <std::size_t COUNT> void ExpectTrees(const Case (&rows)[COUNT])
{
    ExpectTrees(rows, rows + COUNT);
}

} // namespace

TEST(FastInfosetReader, ReadsElements)
{
    ExpectTrees({
        {"3C 00'a' FF", L"a"},
        {"3C 00'a' F0 F0", L"a"},
        {"3C 00'a' F0", L"a"}, // the end of the document is not needed
        {"3C 00'a' 3C 00'b' F0 00 F0 01 FF FF", L"a (b, a, b)"},
        {"3C 00'a' 3C 00'b' 3C 00'c' FF 02 FF F0", L"a (b (c), c)"},
        // namespace, and prefix with namespace; the second b has another name than the first
        {"3D 01'un' 00'a' 3F 00'p' 81 00'b' 3C 81 01 02 FF FF F0", L"{un}a ({un}b (b ({un}b (b))))"},
        // the local name has another index than the qualified name
        {"3D 00'u' 00'a' 3C 00'b' F0 3D 81 81 F0 02 FF", L"{u}a (b, {u}b, {u}b)"},
    });
}

TEST(FastInfosetReader, ReadsAttributes)
{
    ExpectTrees({
        {"7C 00'a' 78 00'x' 00'1' F0 FF", L"a @x=1"},
        {"7C 00'a' 78 00'x' 00'1' FF", L"a @x=1"}, // list and element end at once
        {"7C 00'a' 78 00'x' FF FF", L"a @x="},     // the empty value
        // values 1 and 2 enter the table, 3 does not
        {"7C 00'a' 78 00'x' 40'1' 78 00'y' 00'3' 78 00'z' 40'2' F0 40 00 81 01 80 FF 40 02 80 FF FF",
            L"a @x=1 @y=3 @z=2 (a @x=2 @y=1, a @z=1)"},
        {"7C 00'a' 79 00'u' 00'x' 00'1' 7B 00'p' 81 00'y' 01'22' F0 40 01 00'3' F0 FF",
            L"a @{u}x=1 @{u}y=22 (a @{u}y=3)"},
        {"7C 00'a' 78 00'x' 02'1' 0D'2' FF", L"a @x=1\r2"}, // values keep carriage returns
        {"7C 00'a' 7B 80 80 03'lang' FF FF", L"a @{http://www.w3.org/XML/1998/namespace}lang="},
    });
}

TEST(FastInfosetReader, RecordsPrefixesOfDeclarationsAndLiteralNames)
{
    // xmlns="u" xmlns:p="v" xmlns:q="u"; the name with the attribute r:x; xmlns="" on b; s:c of another namespace
    const std::string octets =
        FastInfoset("78 CD 00'u' CF 00'p' 00'v' CF 00'q' 81 F0 3D 82 00'a' 7B 00'r' 81 00'x' 00'1' F0"
                    "38 CC F0 3C 00'b' F0 3F 00's' 00'w' 00'c' FF");
    CXmlDocument document;
    TestSupport::LoadOctets(document, octets);
    EXPECT_EQ(L"{v}a @{u}x=1 (b, {w}c)", TestSupport::TreeText(document.GetDocumentElement()));
    const std::map<std::wstring, std::wstring> expected = {
        {L"", L""}, {L"p", L"v"}, {L"q", L"u"}, {L"r", L"u"}, {L"s", L"w"}};
    EXPECT_EQ(expected, document.GetNamespaceDeclarations());
}

TEST(FastInfosetReader, ReadsText)
{
    ExpectTrees({
        {"3C 00'a' 80'x' 81'yz' 82 00'123' FF", L"a 'xyz123'"},
        {"3C 00'a' 90'x' 91'yz' 80'-' A1 A0 FF", L"a 'xyz-yzx'"},
        {"3C 00'a' 80'1' 3C 00'b' 90'2' F0 80'3' 00 A0 FF", L"a '13' (b '2', a '2')"},
        {"3C 00'a' 92 02'x' 0D'y' 0A'z' A0 FF", L"a 'xy\nzxy\nz'"}, // no carriage returns, not from the table either
        {"3C 00'a' 82 00'x' 00'y' 80'z' FF", L"a 'xz'"},            // to the first NUL
        {"3C 00'a' 82 04 C3 A9 F0 9F 98 80 80 FF FF", L"a 'é\xD83D\xDE00\xFFFD'"},
    });
}

TEST(FastInfosetReader, ReadsEveryEncodingOfText)
{
    ExpectTrees({
        // UTF-16: chunk, value; the odd octet
        {"3C 00'a' 86 01 00'x' 20 AC FF", L"a 'x€'"},
        {"7C 00'a' 78 00'x' 13 D8 3D DE 00 F0 86 00 00'x' 00 FF", L"a @x=\xD83D\xDE00 'x\xFFFD'"},
        // carriage returns and NUL, also out of the table
        {"3C 00'a' 96 03 00'x' 00 0D 00'y' 00 A0 FF", L"a 'xy' (a 'xy')"},
        {"3C 00'a' 96 03 00'x' 00 00 00'y' 00 A0 FF", L"a 'x' (a 'x')"},
        {"7C 00'a' 78 00'x' 55 00'x' 00 0D 00'y' F0 40 00 80 FF FF", L"a @x=x\ry (a @x=x\ry)"},
        // numeric alphabet, even and odd number of characters, entered into the table
        {"3C 00'a' 98 01 12 F0 FF", L"a '12'"},
        {"3C 00'a' 98 01 1C 3F 80'/' A0 FF", L"a '1.3/1.3'"},
        // dates: alphabet 2
        {"3C 00'a' 88 06 02 20 20 A0 1A 31 FF", L"a '2020-01-31'"},
        {"7C 00'a' 78 00'x' 60 14 20 20 A0 1A 31 F0 40 00 80 FF FF", L"a @x=2020-01-31 (a @x=2020-01-31)"},
        // algorithms: hexadecimal, base64, two shorts, boolean, float
        {"3C 00'a' 8C 01 AB CD FF", L"a 'ABCD'"},
        {"7C 00'a' 78 00'x' 70 12'abc' 78 00'y' 70 23 FF FE 00 07 F0 8C 14 38 FF", L"a @x=YWJj @y=-2 7 'true'"},
        {"7C 00'a' 78 00'x' 30 63 3F C0 00 00 FF", L"a @x=1.5"},
    });
}

TEST(FastInfosetReader, PassesOverWhatIsNotKept)
{
    ExpectTrees({
        {"E2 00'c' E2 01'cc' E2 80 E2 FF E1 00'p' 00'd' E1 80 FF 3C 00'a' FF", L"a"},
        {"C4 F0 C6 00's' F0 C5 00'p' F0 C7 00's' 80 E1 00'p' 00'd' F0 3C 00'a' FF", L"a"},
        // nothing of it enters a table; a text that ends like a list does
        {"3C 00'a' E2 41'c' F0 E1 00'p' 40'd' C8 00'e' C9 00'e' 00'p' CA 00'e' 00's' CB 80 80 80 82 00'xyz' FF",
            L"a 'xyz'"},
        {"7C 00'a' 78 00'x' 40'1' F0 E2 40'c' E1 00'p' 40'd' 7C 00'b' 00 80 FF F0", L"a @x=1 (b @x=1)"},
        {"3C 00'a' E2 30 00 00 FF", L"a"}, // the octets of algorithms are not decoded
    });
}

TEST(FastInfosetReader, StopsAtTheEndOfTheRoot)
{
    EXPECT_EQ(L"a", TreeOf(FastInfoset("3C 00'a' FF 3C 00'b' FF")));
    EXPECT_EQ(L"a", TreeOf(FastInfoset("3C 00'a' F0 80'x' 12 34")));
}

TEST(FastInfosetReader, KeepsWhatWasBuiltBeforeAFailure)
{
    CXmlDocument document;
    EXPECT_EQ(L"Failed to parse FastInfoset. Invalid Encoding of Element type.", MessageOf<CZrException>([&] {
        TestSupport::LoadOctets(document, FastInfoset("3C 00'a' 80'x' 7C 00'b' 78 00'y' 00'1' F0 D0"));
    }));
    EXPECT_EQ(L"a 'x' (b @y=1)", TestSupport::TreeText(document.GetDocumentElement()));
    TestSupport::LoadOctets(document, FastInfoset("3C 00'c' FF"));
    EXPECT_EQ(L"c", TestSupport::TreeText(document.GetDocumentElement()));
}

TEST(FastInfosetReader, ReadsCompressedDocuments)
{
    const std::string octets = FastInfoset("3C 00'a' 83 00 00 00 FD") + std::string(512, ' ') + "\xFF";
    std::vector<unsigned char> bytes(octets.begin(), octets.end());
    for (const auto compress : {Compression_GZip, Compression_ZLib}) {
        CBinaryData data(bytes.data(), bytes.size(), false);
        CZrZip::CompressData(data, compress);
        CXmlDocument document;
        document.LoadXmlStream(data.GetData(), data.GetLength());
        EXPECT_EQ(std::wstring(512, L' '), document.GetDocumentElement()->GetText());
    }
}

TEST(FastInfosetReader, CallsTheElementEndCallback)
{
    const std::string octets = FastInfoset("3C 00'a' 3C 00'b' 3C 00'c' 80'x' FF 40 78 00'x' 00'1' FF 00 FF F0");
    CXmlDocument document([](CXmlElement* element) { return element->GetLocalName() != L"c"; });
    TestSupport::LoadOctets(document, octets);
    EXPECT_EQ(L"a", TestSupport::TreeText(document.GetDocumentElement()));
    CXmlDocument failing([](CXmlElement*) -> bool { throw std::runtime_error("stop"); });
    EXPECT_THROW(TestSupport::LoadOctets(failing, octets), std::runtime_error);
}

// Elements that got a text by its index share it; what is appended to one of them is not the others'.
TEST(FastInfosetReader, AppendsToOneOfTheTextsThatShareAnIndex)
{
    ExpectTrees({
        {"3C 00'a' 3C 00'b' 90'v' A0 80'w' F0 01 A0 80'x' F0 01 A0 A0 F0 01 A0 FF F0",
            L"a (b 'vvw', b 'vx', b 'vv', b 'v')"},
        {"3C 00'a' 3C 00'b' 80'w' 90'v' F0 01 A0 A0 FF F0", L"a (b 'wv', b 'vv')"},
        {"3C 00'a' 3C 00'b' 91'v'0D F0 01 A0 80'x' FF F0", L"a (b 'v', b 'vx')"},
        {"3C 00'a' 3C 00'b' 910D0D 80'x' F0 01 A0 80'y' FF F0", L"a (b 'x', b 'y')"},
    });
    CXmlDocument document;
    TestSupport::LoadOctets(document, FastInfoset("3C 00'a' 3C 00'b' 90'v' F0 01 A0 F0 01 A0 FF F0"));
    CXmlElement* const middle = document.GetDocumentElement()->GetFirstElement()->GetNextSiblingElement();
    middle->AppendText(L"+");
    EXPECT_EQ(L"a (b 'v', b 'v+', b 'v')", TestSupport::TreeText(document.GetDocumentElement()));
    // Nodes that leave the tree take their texts with them.
    CXmlDocument filtered([](CXmlElement* element) { return element->GetText() == L"v"; });
    TestSupport::LoadOctets(filtered, FastInfoset("3C 00'a' 3C 00'b' 90'v' F0 01 A0 F0 01 A0 80'x' FF F0"));
    EXPECT_EQ(L"a (b 'vx')", TestSupport::TreeText(filtered.GetDocumentElement()));
}

TEST(FastInfosetReader, StartsFromTheGeneratedVocabulary)
{
    CSerializationContext context;
    CFastInfosetContext& settings = context.GetFIContext();
    CFIVocabulary& vocabulary = *settings.GetVocabulary();
    vocabulary.AddElement(L"p", L"u", L"a");
    vocabulary.AddElement(L"", L"", L"b");
    vocabulary.AddAttribute(L"", L"", L"x");
    vocabulary.AddAttributeValue(L"value");
    vocabulary.AddElementValue(L"te\rxt");
    settings.SetUseGeneratedVocabulary(true);
    // its entries, then those of the document: names c {u}d {w}a, value 2, chunk 2
    const std::string octets = Octets("E0 00 00 01 20 10 00 02'urn' 40 00 80 F0 A0"
                                      "3C 00'c' F0 3D 81 00'd' F0 3D 00'w' 80 F0 02 F0 03 F0 04 F0"
                                      "41 00 41'22' F0 90'z' A1 F0 41 00 81 F0 FF");
    const wchar_t* const tree = L"{u}a @x=value 'text' (c, {u}d, {w}a, c, {u}d, {w}a, b @x=22 'zz', b @x=22)";
    EXPECT_EQ(tree, TreeOf(octets, context));
    EXPECT_EQ(tree, TreeOf(octets, context)) << "the context's vocabulary has changed";
    settings.SetUseGeneratedVocabulary(false);
    EXPECT_NE(L"", FailureOf(octets, context));
}

TEST(FastInfosetReader, RefusesBrokenEntriesOfAGeneratedVocabulary)
{
    CSerializationContext context;
    CFastInfosetContext& settings = context.GetFIContext();
    CFIVocabulary& vocabulary = *settings.GetVocabulary();
    vocabulary.AddQNameToVector(0, 0, 0, vocabulary.GetElementNamesTable());
    vocabulary.AddQNameToVector(0, 9, 1, vocabulary.GetElementNamesTable());
    settings.SetUseGeneratedVocabulary(true);
    for (const char* const root : {"00 FF", "01 FF", "02 FF"}) {
        EXPECT_EQ(
            L"Failed to parse FastInfoset. Invalid Encoding of integers 1 To 2^20 type  on the third bit of an octet.",
            FailureOf(FastInfoset(root), context))
            << root;
    }
}

TEST(FastInfosetReader, LeavesADocumentWithoutInputAlone)
{
    CXmlDocument document;
    const CFastInfosetContext context;
    CFastInfosetReader reader(context, document);
    EXPECT_FALSE(reader.Parse());
    reader.Cleanup();
    EXPECT_EQ(nullptr, document.GetDocumentElement());
}
