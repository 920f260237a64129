// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/TextStream.h"
#include "ZrXmlLib16/XmlTextWriter.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "support/TestText.h"

#include <vector>

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

    void Leaf(const wchar_t* name, const wchar_t* text)
    {
        writer.WriteStartElement(name, L"");
        writer.WriteString(text, ItemType_string, false);
        writer.WriteEndElement();
    }
    void End(int count)
    {
        for (; count > 0; --count) {
            writer.WriteEndElement();
        }
    }
    void Attribute(const wchar_t* name, const wchar_t* namespaceUri, const wchar_t* value)
    {
        writer.WriteAttributeString(name, namespaceUri, value, ItemType_string);
    }
    std::wstring Text() { return stream.GetText(); }

    CTextStream stream;
    CXmlTextWriter writer;
};

// Records the calls of a writer and keeps nothing after a flush.
class RecordingStream : public CTextStream {
public:
    void Close() override { calls.push_back(L"close"); }
    void Flush() override
    {
        calls.push_back(L"flush " + std::to_wstring(GetLength()));
        EmptyText();
    }

    std::vector<std::wstring> calls;
};

void WriteOrder(WriterTest& test)
{
    test.writer.WriteStartDocument();
    test.writer.WriteHeaderDirective(L"<!DOCTYPE order>");
    test.writer.WriteStartElement(L"order", L"");
    test.Attribute(L"id", L"", L"7");
    test.Leaf(L"note", L"first\nsecond");
    test.Leaf(L"empty", L"");
    test.writer.WriteStartElement(L"items", L"");
    test.Leaf(L"item", L"1");
    test.writer.WriteRawElement(L"<raw/>");
    test.End(2);
    test.writer.Close();
}

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
        {true, EOL_LF, L"\t", Encoding_None,
            L"<?xml version=\"1.0\"?>\n<!DOCTYPE order>\n<order id=\"7\">\n\t<note>first\nsecond</note>\n\t<empty/>\n"
            L"\t<items>\n\t\t<item>1</item>\n<raw/>\n\t</items>\n</order>\n"},
        {true, EOL_CRLF, L"--", Encoding_UTF8,
            L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<!DOCTYPE order>\r\n<order "
            L"id=\"7\">\r\n--<note>first\r\nsecond"
            L"</note>\r\n--<empty/>\r\n--<items>\r\n----<item>1</item>\r\n<raw/>\r\n--</items>\r\n</order>\r\n"},
        {false, EOL_LF, L"\t", Encoding_UTF16,
            L"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n<!DOCTYPE order>\n<order id=\"7\"><note>first\nsecond</note>"
            L"<empty/><items><item>1</item><raw/></items></order>"},
        {true, EOL_LF, nullptr, Encoding_Wide,
            L"<?xml version=\"1.0\"?>\n<!DOCTYPE order>\n<order "
            L"id=\"7\">\n<note>first\nsecond</note>\n<empty/>\n<items>\n"
            L"<item>1</item>\n<raw/>\n</items>\n</order>\n"},
    };
    for (const auto& row : cases) {
        WriterTest test(row.isFormatted, row.encoding);
        test.writer.SetEOLType(row.endOfLine);
        test.writer.SetIndentChars(row.indent);
        WriteOrder(test);
        EXPECT_EQ(row.expected, test.Text());
    }
}

TEST(TextWriter, KeepsMixedContentAsWritten)
{
    WriterTest test;
    test.writer.WriteStartElement(L"p", L"");
    test.writer.WriteString(L"a", ItemType_string, false);
    test.Leaf(L"b", L"c");
    test.writer.WriteString(L"d", ItemType_string, false);
    test.End(1);
    EXPECT_EQ(L"<p>a\t<b>c</b>\nd</p>\n", test.Text());
}

TEST(TextWriter, keeps_EscapesOfTextAndAttributes)
{
    const struct {
        const wchar_t* value;
        const wchar_t* text;
        const wchar_t* attribute;
    } cases[] = {
        {L"a\"b<c\r\nd", L"a\"b&lt;c\r\nd", L"a&quot;b&lt;c&#xA;d"},
        {L"&<>", L"&amp;&lt;&gt;", L"&amp;&lt;&gt;"},
        {L"\r\r", L"", L""},
        {L"'\t\x01\x1F/=\x7F\u00E9\uFFFF", L"'\t\x01\x1F/=\x7F\u00E9\uFFFF", L"'\t\x01\x1F/=\x7F\u00E9\uFFFF"},
        {L"\u013C\u0126z\U0001F600", L"\u013C\u0126z\U0001F600", L"\u013C\u0126z\U0001F600"},
        {L"<![CDATA", L"&lt;![CDATA", L"&lt;![CDATA"},
        {L"<![CDATA[<&\r\n]]><", L"<![CDATA[<&\r\n]]><", L"&lt;![CDATA[&lt;&amp;&#xA;]]&gt;&lt;"},
    };
    for (const auto& row : cases) {
        WriterTest test(false);
        test.writer.SetEOLType(EOL_CRLF);
        test.writer.WriteStartElement(L"e", L"");
        test.Attribute(L"a", L"", row.value);
        test.writer.WriteString(row.value, ItemType_string, false);
        test.writer.WriteEndElement();
        EXPECT_EQ(L"<e a=\"" + std::wstring(row.attribute) + L"\">" + row.text + L"</e>", test.Text());
    }
}

TEST(TextWriter, keeps_EmptyTextAsAnEmptyElementTag)
{
    WriterTest test(false);
    test.writer.WriteStartElement(L"a", L"");
    test.writer.WriteString(L"", ItemType_string, false);
    test.Attribute(L"late", L"", L"1");
    test.writer.WriteEndElement();
    EXPECT_EQ(L"<a late=\"1\"/>", test.Text());
}

TEST(TextWriter, LeavesOutDefaultValuesUnlessToldOtherwise)
{
    WriterTest test(false);
    EXPECT_FALSE(test.writer.GetWriteDefaultElementValues());
    for (bool isWritten : {false, true}) {
        test.writer.SetWriteDefaultElementValues(isWritten);
        test.writer.WriteStartElement(L"a", L"");
        test.writer.WriteString(L"5", ItemType_i4, true);
        test.writer.WriteEndElement();
    }
    EXPECT_EQ(L"<a/><a>5</a>", test.Text());
}

TEST(TextWriter, keeps_LineEndsOfCommentsAndInstructions)
{
    WriterTest test(false);
    test.writer.WriteComment(L"a<b\n\"");
    test.writer.WritePI(L"<?style x<y?>");
    EXPECT_EQ(L"<!--a&lt;b\n\"-->\n<?style x<y?>\n\n", test.Text());
}

TEST(TextWriter, keeps_InlineSchemaInsideTheStartTag)
{
    WriterTest test;
    test.writer.WriteStartElement(L"a", L"");
    test.writer.WriteInlineSchema(L"<schema/>");
    test.writer.WriteEndElement();
    EXPECT_EQ(L"<a \n<schema/>\n/>\n", test.Text());
}

TEST(TextWriter, RefusesCallsInTheWrongOrder)
{
    WriterTest test;
    const std::wstring attributes = L"Attributes must be added before elements";
    EXPECT_EQ(attributes, MessageOf<CZrException>([&] { test.Attribute(L"a", L"", L""); }));
    EXPECT_EQ(L"There is no open element to end.",
        MessageOf<CZrInvalidStateException>([&] { test.writer.WriteEndElement(); }));
    test.writer.WriteString(L"a<b", ItemType_string, false);
    test.writer.WriteStartElement(L"e", L"urn:e");
    EXPECT_EQ(L"Headed directives must appear before an Element has been added.",
        MessageOf<CZrException>([&] { test.writer.WriteHeaderDirective(L"x"); }));
    test.writer.WriteString(L"t", ItemType_string, false);
    EXPECT_EQ(attributes, MessageOf<CZrException>([&] { test.Attribute(L"a", L"", L""); }));
    EXPECT_EQ(
        attributes, MessageOf<CZrException>([&] { test.writer.WriteAttributeType(L"t", L"urn:t", ItemType_none); }));
    EXPECT_EQ(attributes, MessageOf<CZrException>([&] { test.writer.WriteAttributeNil(); }));
    EXPECT_EQ(L"Invalid EOL type.", MessageOf<CZrException>([&] { test.writer.SetEOLType(static_cast<EOLType>(2)); }));
    EXPECT_EQ(EOL_LF, test.writer.GetEOLType());
    EXPECT_EQ(L"a&lt;b<AA:e xmlns:AA=\"urn:e\">t", test.Text());
}

TEST(TextWriter, keeps_TheStreamClosedBeforeAnOpenElementIsReported)
{
    RecordingStream stream;
    CXmlTextWriter writer(stream);
    writer.Open();
    writer.WriteStartElement(L"a", L"");
    EXPECT_EQ(L"An Element has not been closed.", MessageOf<CZrException>([&] { writer.Close(); }));
    EXPECT_EQ(std::vector<std::wstring>{L"close"}, stream.calls);
    writer.WriteEndElement();
    writer.Close();
    EXPECT_EQ(2u, stream.calls.size());
}

TEST(TextWriter, FlushesBetweenOperationsAboveTheThreshold)
{
    RecordingStream stream;
    CXmlTextWriter writer(stream);
    writer.WriteStartElement(L"a", L"");
    writer.WriteString(std::wstring(4092, L'x'), ItemType_string, false);
    EXPECT_TRUE(stream.calls.empty());
    writer.WriteString(L"<<<", ItemType_string, false);
    EXPECT_EQ(std::vector<std::wstring>{L"flush 4107"}, stream.calls);
    EXPECT_EQ(0u, stream.GetLength());
}

TEST(TextWriter, DeepNestingNeedsNoStack)
{
    WriterTest test(false);
    constexpr int DEPTH = 300000;
    for (int i = 0; i < DEPTH; ++i) {
        test.writer.WriteStartElement(L"a", L"urn:a");
    }
    EXPECT_EQ(L"An Element has not been closed.", MessageOf<CZrException>([&] { test.writer.Close(); }));
}
