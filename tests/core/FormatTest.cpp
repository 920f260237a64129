// SPDX-License-Identifier: MIT
// The entry points of JSON and Fast Infoset, and one object through every format.
#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/FIVocabulary.h"
#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/JsonContext.h"
#include "support/Failure.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const TestClass& OrderClass()
{
    static const TestClass type = Class(L"order")
                                      .In(L"urn:order")
                                      .Prim(L"note")
                                      .Ns(L"urn:order")
                                      .Cls(L"item", Class(L"item").Prim(L"qty", ItemType_i4).Ns(L"urn:order"))
                                      .Ns(L"urn:order")
                                      .Col();
    return type;
}

CBinaryData BytesOf(const std::string& text)
{
    return CBinaryData(reinterpret_cast<unsigned char*>(const_cast<char*>(text.data())), text.size(), false);
}

/// Files are gone with the test.
class Format : public testing::Test {
protected:
    Format()
    {
        m_order.Set(L"note", L"caf\u00e9 \U0001F600 <&>");
        for (int i = 0; i < 20; ++i)
            m_order.Add(L"item")->Set(L"qty", std::to_wstring(i).c_str());
        m_context.SetDefaultNamespaceURI(L"urn:order");
    }
    ~Format() override
    {
        AsyncToXmlFile(false);
        std::filesystem::remove(Narrow(m_file));
    }
    std::string Content() const
    {
        std::ifstream stream(Narrow(m_file), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    /// The order as it is read: supplementary characters come back as surrogate pairs.
    std::wstring Expected() const
    {
        TestObject expected(OrderClass());
        expected.FromXml(m_order.ToXml().c_str());
        expected.Set(L"note", L"caf\u00e9 \xD83D\xDE00 <&>");
        return DescribeObject(expected);
    }

    const std::wstring m_file =
        std::filesystem::temp_directory_path().wstring() + L"/zrxml_format" + std::to_wstring(getpid());
    CSerializationContext m_context;
    TestObject m_order{OrderClass()}, m_read{OrderClass()};
};

} // namespace

TEST_F(Format, EveryJsonFormReadsBackInEveryMode)
{
    for (const JsonRoundTrip mode : {JsonRoundTrip_Plain, JsonRoundTrip_Attributes, JsonRoundTrip_Full}) {
        m_context.GetJsonContext().SetSupportRoundtrip(mode);
        for (const CompressionType compression : {Compression_None, Compression_GZip, Compression_ZLib}) {
            for (const bool formatted : {false, true}) {
                const CBinaryData bytes =
                    m_order.ToJsonStream(formatted, Encoding_UTF8, EOL_CRLF, m_context, compression);
                m_read.FromJsonStream(bytes, m_context);
                EXPECT_EQ(Expected(), DescribeObject(m_read));
                if (compression != Compression_ZLib) {
                    m_order.ToJsonFile(m_file.c_str(), formatted, Encoding_UTF8, EOL_CRLF, m_context, compression);
                    EXPECT_TRUE(bytes == BytesOf(Content()));
                    m_read.FromXml(L"<order xmlns='urn:order'><note/></order>");
                    m_read.FromJsonFile(m_file.c_str(), m_context);
                    EXPECT_EQ(Expected(), DescribeObject(m_read));
                }
            }
        }
        m_read.FromJson(m_order.ToJson(true, EOL_LF, m_context).c_str(), m_context);
        EXPECT_EQ(Expected(), DescribeObject(m_read));
        EXPECT_FALSE(m_context.GetIgnoreNamespaces());
    }
}

TEST_F(Format, JsonSettingsOfTheContextAreUsed)
{
    m_context.SetIndentChars(L"  ");
    m_read.FromJson(L"{\"order\": {\"@xmlns\": \"urn:order\", \"note\": \"n\"}}", m_context);
    EXPECT_EQ(L"{\r\n  \"order\": {\r\n    \"@xmlns\": \"urn:order\",\r\n    \"note\": \"n\"\r\n  }\r\n}",
        m_read.ToJson(true, EOL_CRLF, m_context));
    m_context.GetJsonContext().SetSupportRoundtrip(JsonRoundTrip_Plain);
    m_context.GetJsonContext().SetRootElementName(L"order");
    m_context.GetJsonContext().GetAllowComments(true);
    m_read.FromJson(L"// of a service\n{\"item\": [{\"qty\": 1}, {\"qty\": 2}], \"note\": \"n\"}",
        (m_context.SetIgnoreUnknownElements(true), m_context));
    EXPECT_EQ(L"{\"order\": {\"note\": \"n\"}}", m_read.ToJson(false, EOL_LF, m_context));
}

// As if the text had been UTF-8 in between.
TEST_F(Format, WideJsonTextOfAnyUnits)
{
    for (const wchar_t* const note :
        {L"\xD83D\xDE00", L"a\U0001F600", L"\xD83D", L"\xDE00\xD83D-", L"\x110000", L"\uFF01\uE000"}) {
        const std::wstring json =
            std::wstring(L"{\"order\": {\"@xmlns\": \"urn:order\", \"note\": \"") + note + L"\"}}";
        TestObject expected(OrderClass());
        expected.FromXml(CEncoder::Utf8ToUnicode(CXmlDocument().LoadJson(json.c_str())).c_str());
        m_read.FromJson(json.c_str());
        EXPECT_EQ(DescribeObject(expected), DescribeObject(m_read));
    }
}

TEST_F(Format, keeps_NarrowJsonTextIsTakenOctetByOctet)
{
    m_read.FromJson("{\"order\": {\"@xmlns\": \"urn:order\", \"note\": \"caf\xC3\xA9\"}}");
    TestObject expected(OrderClass());
    EXPECT_EQ(DescribeObject(expected.Set(L"note", L"caf\u00c3\u00a9")), DescribeObject(m_read));
}

TEST_F(Format, keeps_ContextOfJsonReadingIsAlteredAndRestored)
{
    const wchar_t* const json = L"{\"order\": {\"note\": \"n\", \"more\": 1}}";
    for (const bool ignoring : {false, true}) {
        CSerializationContext context;
        context.SetIgnoreNamespaces(ignoring);
        context.GetJsonContext().SetSupportRoundtrip(JsonRoundTrip_Attributes);
        EXPECT_EQ("Zr: Error converting JSON to XML:\n<order>\n\t<note>n</note>\n\t<more>1</more>\n</order>\n <- "
                + LeftOver("/order", "order", "more"),
            FailureOf([&] { m_read.FromJson(json, context); }));
        EXPECT_EQ(ignoring, context.GetIgnoreNamespaces());
    }
}

TEST_F(Format, FailuresOfJsonReading)
{
    const std::pair<std::string, std::function<void()>> cases[] = {
        {"Zr: JSON String is empty!", [&] { m_read.FromJson(""); }},
        {"Zr: JSON String is empty!", [&] { m_read.FromJson(L""); }},
        {"Zr: JSON Stream is empty!", [&] { m_read.FromJsonStream(CBinaryData()); }},
        {"Zr: Failed to open the file [/no/caf\xC3\xA9].", [&] { m_read.FromJsonFile(L"/no/caf\u00e9"); }},
        {"Validation: Expected Object separator character ',', found '1' at line 2, position 4.\nPath: $.order",
            [&] { m_read.FromJson(L"{\"order\": {\"note\":\n\"\" 1}}"); }},
        {"Zr: Error converting JSON to XML:\n <- Zr: XML String is empty!", [&] { m_read.FromJson(L" "); }},
        {"Zr: Error converting JSON to XML:\n<order>\x01</order>\n <- Zr: not well-formed (invalid token) at line 1",
            [&] { m_read.FromJson(L"{\"order\": \"\x01\"}"); }},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row.first, FailureOf(row.second));
}

// Octets are made piece by piece, text is not.
TEST_F(Format, OctetsAreThoseOfTheText)
{
    for (std::size_t length = 4000; length < 4200; ++length) {
        m_order.Set(L"note",
            (std::wstring(length, L'a') + L"\xD83D\xDE00\u00e4\xD83D" + std::wstring(5000, L'\u20ac')).c_str());
        ASSERT_TRUE(m_order.ToXmlStream(false, true, Encoding_UTF8, EOL_LF, m_context)
            == CEncoder::UnicodeToUtf8Binary(m_order.ToXml(false, true, EOL_LF, m_context)));
        ASSERT_TRUE(m_order.ToJsonStream(true, Encoding_UTF8, EOL_LF, m_context)
            == CEncoder::UnicodeToUtf8Binary(m_order.ToJson(true, EOL_LF, m_context)));
    }
    // The writer lets go what it has after a text, here behind one half of a pair.
    for (const wchar_t* half : {L"\xD83D", L"\xDE00", L"\xD83D\xD83D"}) {
        m_order.Set(L"note", (std::wstring(20000, L'a') + half).c_str());
        EXPECT_TRUE(m_order.ToXmlStream(false, true, Encoding_UTF8, EOL_LF, m_context)
            == CEncoder::UnicodeToUtf8Binary(m_order.ToXml(false, true, EOL_LF, m_context)));
    }
}

TEST_F(Format, EveryFastInfosetFormReadsBack)
{
    for (int declaration = FInfoDecl_None; declaration <= FInfoDecl_11EncNo; ++declaration) {
        for (const CompressionType compression : {Compression_None, Compression_GZip, Compression_ZLib}) {
            const CBinaryData bytes =
                m_order.ToFastInfosetStream(static_cast<FInfoDecl>(declaration), m_context, compression);
            m_read.FromXmlStream(bytes, m_context);
            EXPECT_EQ(Expected(), DescribeObject(m_read));
            if (compression != Compression_ZLib) {
                m_order.ToFastInfosetFile(m_file.c_str(), static_cast<FInfoDecl>(declaration), m_context, compression);
                EXPECT_TRUE(bytes == BytesOf(Content()));
                m_read.FromXml(L"<order xmlns='urn:order'><note/></order>");
                m_read.FromXmlFile(m_file.c_str(), m_context);
                EXPECT_EQ(Expected(), DescribeObject(m_read));
            }
        }
    }
}

TEST_F(Format, keeps_RefusalOfZlibForFilesOfOtherFormats)
{
    const std::string message = "Zr: ZLIB Compression only available for To Stream methods.";
    EXPECT_EQ(message, FailureOf([&] {
        m_order.ToJsonFile(m_file.c_str(), true, Encoding_UTF8, EOL_LF, m_context, Compression_ZLib);
    }));
    EXPECT_EQ(message,
        FailureOf([&] { m_order.ToFastInfosetFile(m_file.c_str(), FInfoDecl_None, m_context, Compression_ZLib); }));
    EXPECT_FALSE(std::filesystem::exists(Narrow(m_file)));
}

TEST_F(Format, AsynchronousJsonFilesAreWrittenDirectly)
{
    m_order.ToJsonFile(m_file.c_str(), true, Encoding_UTF8, EOL_LF, m_context);
    const std::string buffered = Content();
    AsyncToXmlFile(true);
    m_order.ToJsonFile(m_file.c_str(), true, Encoding_UTF8, EOL_LF, m_context);
    EXPECT_EQ(buffered, Content());
    m_order.Add(L"item");
    EXPECT_NE("", FailureOf([&] { m_order.ToJsonFile(m_file.c_str(), true, Encoding_UTF8, EOL_LF, m_context); }));
    EXPECT_GT(buffered.length(), Content().length());
}

TEST_F(Format, BinaryDocumentWithoutRoot)
{
    const unsigned char onlyTerminator[] = {0xE0, 0x00, 0x00, 0x01, 0x00, 0xF0};
    EXPECT_EQ("Zr: Failed to parse FastInfoset. Unexpected End of File.",
        FailureOf([&] { m_read.FromXmlStream(onlyTerminator, sizeof onlyTerminator); }));
}

// What a format cannot carry is listed here; everything else of the sample comes back equal.
TEST(Formats, TheSampleComesBackFromEveryFormat)
{
    TestObject sample(SampleClass());
    FillSample(sample);
    CSerializationContext context;
    context.GetNamespaceAliases().Add(L"o", L"urn:other");
    CFastInfosetContext& binary = context.GetFIContext();
    const std::pair<const char*, std::function<void()>> settings[] = {
        {"literal", [] {}},
        {"suggested values",
            [&] {
                binary.SetSuggestedValues();
                // An unsigned value above the signed range has no octets.
                binary.SetEncoding(ItemType_ui8, {CFastInfosetContext::Literal, 0});
            }},
        {"everything indexed",
            [&] {
                binary.SetAttributeMaxAddLength(1000);
                binary.SetElementMaxAddLength(1000);
            }},
        {"generated vocabulary",
            [&] {
                binary.SetUseGeneratedVocabulary(true);
                binary.GetVocabulary()->AddElement(L"", L"", L"sample");
                binary.GetVocabulary()->AddElementValue(L"usual");
                binary.GetVocabulary()->AddAttribute(L"o", L"urn:other", L"extra");
            }},
    };
    for (const auto& row : settings) {
        SCOPED_TRACE(row.first);
        row.second();
        TestObject copy(SampleClass());
        copy.FromXmlStream(sample.ToFastInfosetStream(FInfoDecl_None, context), context);
        CheckSample(copy);
    }
    // Nil elements and xsi:type in modes 0 and 1 do not pass through JSON.
    dynamic_cast<NillableTestObject&>(*sample.Child(L"nothing")).SetNil(false);
    sample.Child(L"nothing")->Set(L"#value", L"something");
    TestObject copy(SampleClass());
    copy.FromJsonStream(sample.ToJsonStream(true, Encoding_UTF8, EOL_LF, context), context);
    EXPECT_EQ(DescribeObject(sample), DescribeObject(copy));
}

TEST(Formats, EqualContextsGiveEqualDocumentsAndStayUnchanged)
{
    TestObject sample(SampleClass());
    FillSample(sample);
    CSerializationContext context;
    context.GetFIContext().SetUseGeneratedVocabulary(true);
    const unsigned long size = context.GetFIContext().GetVocabulary()->GetLocalNamesTable().size();
    const CBinaryData first = sample.ToFastInfosetStream(FInfoDecl_None, context);
    const CSerializationContext copy(context);
    EXPECT_TRUE(first == sample.ToFastInfosetStream(FInfoDecl_None, copy));
    EXPECT_EQ(size, copy.GetFIContext().GetVocabulary()->GetLocalNamesTable().size());
    EXPECT_EQ(&context.GetFIContext(), &copy.GetFIContext());
}
