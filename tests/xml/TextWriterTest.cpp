// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

using namespace ZrXmlLib16;
using TestSupport::MessageOf;

namespace {

struct WriterTest {
    explicit WriterTest(bool isFormatted = true, XmlEncoding encoding = Encoding_None)
        : stream(encoding)
        , writer(stream)
    {
        writer.Open();
        writer.SetFormat(isFormatted);
    }

    void Start(const wchar_t* name) { writer.WriteStartElement(name, L""); }
    void String(const wchar_t* text) { writer.WriteString(text, ItemType_string, false); }
    void Leaf(const wchar_t* name, const wchar_t* text)
    {
        Start(name);
        String(text);
        writer.WriteEndElement();
    }
    void Attribute(const wchar_t* name, const wchar_t* value)
    {
        writer.WriteAttributeString(name, L"", value, ItemType_string);
    }
    std::wstring Text() { return stream.GetText(); }

    CTextStream stream;
    CXmlTextWriter writer;
};

// Records the calls of a writer and keeps nothing after a flush.
class RecordingStream : public CTextStream {
public:
    void Close() override { calls += L"close;"; }
    void Flush() override
    {
        calls += L"flush " + std::to_wstring(GetLength()) + L";";
        EmptyText();
    }

    std::wstring calls;
};

} // namespace

TEST(TextWriter, FormatsElements)
{
    const struct {
        bool isFormatted;
        EOLType endOfLine;
        const wchar_t* indent;
        XmlEncoding encoding;
        const wchar_t* expected;
    } cases[] = {
        {true, EOL_CRLF, L"--", Encoding_UTF8,
            L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<!DOCTYPE order>\r\n<order id=\"7\">\r\n--<note>first\r\n"
            L"second</note>\r\n--<empty/>\r\n--<items>\r\n----<item>1</item>\r\n<raw/>\r\n--</items>\r\n</order>\r\n"},
        {false, EOL_LF, L"\t", Encoding_UTF16,
            L"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n<!DOCTYPE order>\n<order id=\"7\"><note>first\nsecond</note>"
            L"<empty/><items><item>1</item><raw/></items></order>"},
        {true, EOL_LF, nullptr, Encoding_Wide,
            L"<?xml version=\"1.0\"?>\n<!DOCTYPE order>\n<order id=\"7\">\n<note>first\nsecond</note>\n<empty/>\n"
            L"<items>\n<item>1</item>\n<raw/>\n</items>\n</order>\n"},
    };
    for (const auto& row : cases) {
        WriterTest test(row.isFormatted, row.encoding);
        test.writer.SetEOLType(row.endOfLine);
        test.writer.SetIndentChars(row.indent);
        test.writer.WriteStartDocument();
        test.writer.WriteHeaderDirective(L"<!DOCTYPE order>");
        test.Start(L"order");
        test.Attribute(L"id", L"7");
        test.Leaf(L"note", L"first\nsecond");
        test.Leaf(L"empty", L"");
        test.Start(L"items");
        test.Leaf(L"item", L"1");
        test.writer.WriteRawElement(L"<raw/>");
        test.writer.WriteEndElement();
        test.writer.WriteEndElement();
        test.writer.Close();
        EXPECT_EQ(row.expected, test.Text());
    }
}

TEST(TextWriter, keeps_EscapesOfTextAndAttributes)
{
    const struct {
        const wchar_t *value, *text, *attribute;
    } cases[] = {
        {L"a\"b<c\r\nd", L"a\"b&lt;c\r\nd", L"a&quot;b&lt;c&#xA;d"},
        {L"'\t\x01\x1F/=\x7F\u00E9\uFFFF", L"'\t\x01\x1F/=\x7F\u00E9\uFFFF", L"'\t\x01\x1F/=\x7F\u00E9\uFFFF"},
        {L"\u013C\u0126z\U0001F600", L"\u013C\u0126z\U0001F600", L"\u013C\u0126z\U0001F600"},
        {L"<![CDATA", L"&lt;![CDATA", L"&lt;![CDATA"},
        {L"<![CDATA[<&\r\n]]><", L"<![CDATA[<&\r\n]]><", L"&lt;![CDATA[&lt;&amp;&#xA;]]&gt;&lt;"},
    };
    for (const auto& row : cases) {
        WriterTest test(false);
        test.writer.SetEOLType(EOL_CRLF);
        test.Start(L"e");
        test.Attribute(L"a", row.value);
        test.String(row.value);
        test.writer.WriteEndElement();
        EXPECT_EQ(L"<e a=\"" + std::wstring(row.attribute) + L"\">" + row.text + L"</e>", test.Text());
    }
}

TEST(TextWriter, keeps_TabsOfAttributesThatEveryParserTakesForBlanks)
{
    const struct {
        const wchar_t *value, *written, *read;
    } cases[] = {
        {L"\ta\t\tb\t", L"\ta\t\tb\t", L" a  b "},
        // Line ends are written as references, without their carriage returns, and come back.
        {L"a\r\nb\n", L"a&#xA;b&#xA;", L"a\nb\n"},
        {L"a\rb", L"ab", L"ab"},
    };
    for (const auto& row : cases) {
        WriterTest test(false);
        test.Start(L"e");
        test.Attribute(L"a", row.value);
        test.writer.WriteEndElement();
        EXPECT_EQ(L"<e a=\"" + std::wstring(row.written) + L"\"/>", test.Text());
        CXmlDocument document;
        document.LoadXml(test.Text().c_str());
        EXPECT_EQ(L"e @a=" + std::wstring(row.read), TestSupport::TreeText(document.GetDocumentElement()));
    }
    // Another program's line ends are blanks too, one for each pair.
    EXPECT_EQ(L"e @a=x y z '\tu'", TestSupport::ParsedTree("<e a='x\ny\r\nz'>\tu</e>"));
}

TEST(TextWriter, keeps_EmptyTextAsAnEmptyElementTag)
{
    WriterTest test(false);
    test.Start(L"a");
    test.String(L"");
    test.Attribute(L"late", L"1");
    test.writer.WriteEndElement();
    EXPECT_EQ(L"<a late=\"1\"/>", test.Text());
}

TEST(TextWriter, LeavesOutDefaultValuesUnlessToldOtherwise)
{
    WriterTest test(false);
    test.Start(L"a");
    test.writer.WriteString(L"5", ItemType_i4, true);
    test.writer.SetWriteDefaultElementValues(true);
    test.writer.WriteString(L"6", ItemType_i4, true);
    test.writer.WriteEndElement();
    EXPECT_EQ(L"<a>6</a>", test.Text());
}

TEST(TextWriter, keeps_LineEndsOfCommentsAndInstructions)
{
    WriterTest test(false);
    test.writer.WriteComment(L"a<b\n\"");
    test.writer.WritePI(L"<?style x<y?>");
    EXPECT_EQ(L"<!--a&lt;b\n\"-->\n<?style x<y?>\n\n", test.Text());
}

TEST(TextWriter, KeepsMixedContentAsWritten)
{
    WriterTest test;
    test.Start(L"p");
    test.String(L"a");
    test.Leaf(L"b", L"c");
    test.String(L"d");
    test.writer.WriteEndElement();
    EXPECT_EQ(L"<p>a\t<b>c</b>\nd</p>\n", test.Text());
}

TEST(TextWriter, keeps_InlineSchemaInsideTheStartTag)
{
    WriterTest test;
    test.Start(L"a");
    test.writer.WriteInlineSchema(L"<schema/>");
    test.writer.WriteEndElement();
    EXPECT_EQ(L"<a \n<schema/>\n/>\n", test.Text());
}

TEST(TextWriter, RefusesCallsInTheWrongOrder)
{
    WriterTest test;
    const auto expectLate = [](auto call) {
        EXPECT_EQ(L"Attributes must be added before elements", MessageOf<CZrException>(call));
    };
    expectLate([&] { test.Attribute(L"a", L""); });
    EXPECT_EQ(L"There is no open element to end.",
        MessageOf<CZrInvalidStateException>([&] { test.writer.WriteEndElement(); }));
    test.String(L"a<b");
    test.writer.WriteStartElement(L"e", L"urn:e");
    EXPECT_EQ(L"Headed directives must appear before an Element has been added.",
        MessageOf<CZrException>([&] { test.writer.WriteHeaderDirective(L"x"); }));
    test.String(L"t");
    expectLate([&] { test.Attribute(L"a", L""); });
    expectLate([&] { test.writer.WriteAttributeType(L"t", L"urn:t", ItemType_none); });
    expectLate([&] { test.writer.WriteAttributeNil(); });
    EXPECT_EQ(L"Invalid EOL type.", MessageOf<CZrException>([&] { test.writer.SetEOLType(static_cast<EOLType>(2)); }));
    EXPECT_EQ(L"a&lt;b<AA:e xmlns:AA=\"urn:e\">t", test.Text());
}

TEST(TextWriter, keeps_TheStreamClosedBeforeAnOpenElementIsReported)
{
    RecordingStream stream;
    CXmlTextWriter writer(stream);
    writer.Open();
    writer.WriteStartElement(L"a", L"");
    EXPECT_EQ(L"An Element has not been closed.", MessageOf<CZrException>([&] { writer.Close(); }));
    EXPECT_EQ(L"close;", stream.calls);
    writer.WriteEndElement();
    writer.Close();
    EXPECT_EQ(L"close;close;", stream.calls);
}

TEST(TextWriter, FlushesBetweenOperationsAboveTheThreshold)
{
    RecordingStream stream;
    CXmlTextWriter writer(stream);
    writer.WriteStartElement(L"a", L"");
    writer.WriteString(std::wstring(4092, L'x'), ItemType_string, false);
    EXPECT_TRUE(stream.calls.empty());
    writer.WriteString(L"<<<", ItemType_string, false);
    EXPECT_EQ(L"flush 4107;", stream.calls);
}

TEST(TextWriter, DeepNestingNeedsNoStack)
{
    WriterTest test(false);
    for (int i = 0; i < 300000; ++i)
        test.writer.WriteStartElement(L"a", L"urn:a");
    EXPECT_THROW(test.writer.Close(), CZrException);
}
