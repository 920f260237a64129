// SPDX-License-Identifier: MIT
// What the entry points write faster than a writer's single operations would, and texts that meet the borders of the
// pieces in which they are written.
#include "support/TestObject.h"
#include "support/TestText.h"

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

/// The document as the operations of a writer make it one by one.
std::wstring XmlCallByCall(const TestObject& object, bool isFormatted, const CSerializationContext& context)
{
    CTextStream stream;
    CXmlTextWriter writer(stream);
    writer.Open();
    writer.SetFormat(isFormatted);
    writer.SetWriteDefaultElementValues(context.GetWriteDefaultElementValues());
    object.ToXml_Int(&writer, true, object.GetNamespace().c_str(), context, false);
    writer.Close();
    return stream.GetText();
}

std::wstring JsonCallByCall(
    const TestObject& object, bool isFormatted, JsonRoundTrip mode, const CSerializationContext& context)
{
    CTextStream stream;
    CJsonTextWriter writer(stream);
    writer.Open();
    writer.SetFormat(isFormatted);
    writer.SetSupportRoundtrip(mode);
    writer.WriteStartDocument();
    object.ToXml_Int(&writer, true, object.GetNamespace().c_str(), context, false);
    writer.WriteEndDocument();
    writer.Close();
    return stream.GetText();
}

std::string FastInfosetCallByCall(const TestObject& object)
{
    const CFastInfosetContext settings;
    CBinaryStream stream;
    CFastInfosetWriter writer(settings, stream);
    writer.Open();
    writer.WriteStartDocument(FInfoDecl_None);
    object.ToXml_Int(&writer, true, object.GetNamespace().c_str(), CSerializationContext(), false);
    writer.WriteEndDocument();
    writer.Close();
    const CBinaryData& octets = stream.GetBinaryStream();
    return std::string(octets.GetData(), octets.GetData() + octets.GetLength());
}

std::string Octets(const CBinaryData& data)
{
    return std::string(data.GetData(), data.GetData() + data.GetLength());
}

void ExpectSameXml(const TestObject& object)
{
    for (const bool isFormatted : {false, true}) {
        for (const bool writesDefaults : {false, true}) {
            CSerializationContext context;
            context.SetWriteDefaultElementValues(writesDefaults);
            const std::wstring xml = XmlCallByCall(object, isFormatted, context);
            EXPECT_EQ(Narrow(object.ToXml(false, isFormatted, EOL_LF, context)), Narrow(xml));
            EXPECT_EQ(Octets(object.ToXmlStream(false, isFormatted, Encoding_UTF8, EOL_LF, context)),
                CEncoder::UnicodeToUtf8(xml));
        }
    }
}

void ExpectSameInAllForms(const TestObject& object)
{
    ExpectSameXml(object);
    EXPECT_EQ(Octets(object.ToFastInfosetStream(FInfoDecl_None)), FastInfosetCallByCall(object));
    for (const bool isFormatted : {false, true}) {
        for (const JsonRoundTrip mode : {JsonRoundTrip_Plain, JsonRoundTrip_Attributes, JsonRoundTrip_Full}) {
            CSerializationContext context;
            context.GetNamespaceAliases().Add(L"o", L"urn:other");
            context.GetJsonContext().SetSupportRoundtrip(mode);
            const std::wstring json = JsonCallByCall(object, isFormatted, mode, context);
            EXPECT_EQ(Narrow(object.ToJson(isFormatted, EOL_LF, context)), Narrow(json));
            EXPECT_EQ(Octets(object.ToJsonStream(isFormatted, Encoding_UTF8, EOL_LF, context)),
                CEncoder::UnicodeToUtf8(json));
        }
    }
}

/// Escapes character by character.
std::wstring EscapedXml(const std::wstring& text, bool isAttribute)
{
    std::wstring escaped;
    for (const wchar_t c : text) {
        switch (c) {
        case L'&':
            escaped += L"&amp;";
            break;
        case L'<':
            escaped += L"&lt;";
            break;
        case L'>':
            escaped += L"&gt;";
            break;
        case L'"':
            escaped += isAttribute ? L"&quot;" : L"\"";
            break;
        case L'\n':
            escaped += isAttribute ? L"&#xA;" : L"\n";
            break;
        case L'\r':
            break;
        default:
            escaped += c;
        }
    }
    return escaped;
}

std::wstring EscapedJson(const std::wstring& text)
{
    std::wstring escaped;
    for (const wchar_t c : text) {
        if (c == L'\x1F') {
            escaped += L"\\u001F";
        } else if (c != L'\r') {
            escaped += c;
        }
    }
    return escaped;
}

} // namespace

TEST(WrittenText, ElementsAreThoseOfTheSingleOperations)
{
    TestObject sample(SampleClass());
    FillSample(sample);
    dynamic_cast<NillableTestObject&>(*sample.Child(L"nothing")).SetNil(false);
    sample.Child(L"nothing")->Set(L"#value", L"something");
    ExpectSameInAllForms(sample);

    TestClass type = Class(L"order").In(L"urn:d").Attr(L"id");
    type.Prim(L"own").Ns(L"urn:d").Prim(L"other").Ns(L"urn:o").Prim(L"none").Prim(L"default").Default(L"usual");
    type.Prim(L"item").Col().Prim(L"last", ItemType_i4);
    for (const wchar_t* text : {L"", L"plain", L"usual", L"<![CDATA[<raw>]]>", L"a<b>&\"c\"\r\nd", L"\xE9\x20AC",
             L"\xD83D\xDE00", L"a text that is far too long for the vocabulary of a document and is written in full"}) {
        TestObject order(type);
        for (const wchar_t* property : {L"id", L"own", L"other", L"none", L"default"}) {
            order[property].SetString(text);
        }
        for (int i = 0; i < 3; ++i) {
            order.Add(L"item")->Set(L"#value", text);
        }
        order.Set(L"last", L"5");
        SCOPED_TRACE(Narrow(text));
        ExpectSameXml(order);
        EXPECT_EQ(Octets(order.ToFastInfosetStream(FInfoDecl_None)), FastInfosetCallByCall(order));
    }
}

TEST(WrittenText, PrefixesAreThoseOfTheSingleOperations)
{
    // The second namespace has no prefix anywhere, so every element in it invents one of its own.
    TestClass inner = Class(L"inner").In(L"urn:a").Prim(L"x").Ns(L"urn:b").Prim(L"y").Ns(L"urn:b");
    TestClass type = Class(L"outer").In(L"urn:a").Cls(L"inner", inner).Ns(L"urn:a").Prim(L"z").Ns(L"urn:a");
    TestObject outer(type);
    const CSmartPtr<TestObject> child = inner.Create(L"inner");
    child->Set(L"x", L"1").Set(L"y", L"1");
    outer[L"inner"].SetXmlObject(child);
    outer.Set(L"z", L"1");
    ExpectSameXml(outer);
    EXPECT_EQ(Octets(outer.ToFastInfosetStream(FInfoDecl_None)), FastInfosetCallByCall(outer));
}

// Texts are scanned four characters at a time, written in pieces and encoded in blocks.
TEST(WrittenText, EveryCharacterCountsWhereverItStands)
{
    const TestClass type = Class(L"t").Attr(L"a").Prim(L"s");
    const struct {
        std::size_t first;
        std::size_t last;
    } ranges[] = {{0, 9}, {250, 262}, {505, 516}, {1980, 2060}, {4085, 4100}};
    for (const std::wstring middle : {L"&", L"\"", L"\n", L"\r", L"\t", L"\x1F", L"\xE9", L"\xD83D\xDE00", L"\xD83D"}) {
        for (const auto& range : ranges) {
            for (std::size_t before = range.first; before <= range.last; ++before) {
                const std::wstring text = std::wstring(before, L'x') + middle + std::wstring(before % 5, L'y');
                TestObject object(type);
                object[L"a"].SetString(text);
                object[L"s"].SetString(text);
                const std::wstring xml =
                    L"<t a=\"" + EscapedXml(text, true) + L"\"><s>" + EscapedXml(text, false) + L"</s></t>";
                const std::wstring json =
                    L"{\"t\": {\"@a\": \"" + EscapedJson(text) + L"\",\"s\": \"" + EscapedJson(text) + L"\"}}";
                SCOPED_TRACE(std::to_string(before) + " characters before " + Narrow(middle));
                ASSERT_TRUE(object.ToXml(false, false, EOL_LF) == xml);
                ASSERT_TRUE(Octets(object.ToXmlStream(false, false)) == CEncoder::UnicodeToUtf8(xml));
                ASSERT_TRUE(object.ToJson(false, EOL_LF) == json);
                ASSERT_TRUE(Octets(object.ToJsonStream(false)) == CEncoder::UnicodeToUtf8(json));
            }
        }
    }
}

TEST(WrittenText, NamesMayBeLongerThanABlock)
{
    const std::wstring name(5000, L'n');
    TestObject object(Class(L"t").Prim(name.c_str()));
    object.Set(name.c_str(), L"1");
    const std::wstring xml = L"<t><" + name + L">1</" + name + L"></t>";
    EXPECT_TRUE(object.ToXml(false, false, EOL_LF) == xml);
    EXPECT_TRUE(Octets(object.ToXmlStream(false, false)) == CEncoder::UnicodeToUtf8(xml));
    EXPECT_TRUE(Octets(object.ToJsonStream(false)) == CEncoder::UnicodeToUtf8(L"{\"t\": {\"" + name + L"\": \"1\"}}"));
}
