// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlFiles.h"
#include "support/Failure.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const TestClass& NoteClass()
{
    static const TestClass type = Class(L"order").Prim(L"note").Attr(L"id").Opt();
    return type;
}

const std::string document = "<order id=\"\xF0\x9F\x98\x80\"><note>caf\xC3\xA9</note></order>";
const std::string description = "order{note=caf\xC3\xA9,id=\xF0\x9F\x98\x80}";

/// What reading gives; the action gets a new object.
template <class Action> std::string After(Action action)
{
    TestObject object(NoteClass());
    const std::string failure = FailureOf([&] { action(object); });
    return failure + Narrow(DescribeObject(object));
}

XmlOutputOptions Plain()
{
    XmlOutputOptions options;
    options.includeHeader = false;
    options.formatted = false;
    return options;
}

TEST(ReadWriteFunction, Utf8)
{
    EXPECT_EQ("caf\xC3\xA9 \xF0\x9F\x98\x80", ToUtf8(L"caf\u00e9 \xd83d\xde00"));
    EXPECT_EQ(L"caf\u00e9 \xd83d\xde00", FromUtf8("caf\xC3\xA9 \xF0\x9F\x98\x80"));
    EXPECT_EQ(std::string(3, '\0'), ToUtf8(FromUtf8(std::string(3, '\0'))));
    EXPECT_EQ("", ToUtf8(FromUtf8(std::string_view())));
}

TEST(ReadWriteFunction, StringsHoldBytes)
{
    TestObject object(NoteClass());
    ReadXml(object, document);
    EXPECT_EQ(document, WriteXml(object, Plain()));
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n", WriteXml(object).substr(0, 39));

    // Only the part of the buffer that the view names is read.
    EXPECT_EQ(description,
        After([](auto& read) { ReadXml(read, std::string_view(document + "<x").substr(0, document.length())); }));
    XmlOutputOptions packed;
    packed.compression = Compression_GZip;
    object.Set(L"note", std::wstring(1000, L'n').c_str());
    const std::string bytes = WriteXml(object, packed);
    EXPECT_EQ("\x1f\x8b", bytes.substr(0, 2));
    EXPECT_TRUE(Narrow(DescribeObject(object)) == After([&](auto& read) { ReadXml(read, bytes); }));

    CXmlDocument tree;
    ReadXml(tree, document);
    EXPECT_EQ(L"order", tree.GetDocumentElement()->GetLocalName());
}

TEST(ReadWriteFunction, NothingIsNoDocument)
{
    const std::string expected = After([](auto& read) { read.FromXmlStream(CBinaryData()); });
    EXPECT_NE("", expected);
    EXPECT_EQ(expected, After([](auto& read) { ReadXml(read, std::string_view()); }));
    EXPECT_EQ(expected, After([](auto& read) { ReadXml(read, ""); }));
    EXPECT_EQ(expected, After([](auto& read) {
        std::istringstream empty;
        ReadXml(read, empty);
    }));
}

TEST(ReadWriteFunction, TheContextArrives)
{
    CSerializationContext context;
    context.SetIgnoreUnknownElements(true);
    context.SetDefaultNamespaceURI(L"urn:d");
    const std::string odd = "<order><x/><note>n</note></order>";
    EXPECT_EQ("order{note=n}", After([&](auto& read) { ReadXml(read, odd, context); }));
    EXPECT_EQ("order{note=n}", After([&](auto& read) {
        std::istringstream stream(odd);
        ReadXml(read, stream, context);
    }));
    TestObject object(NoteClass());
    object.Set(L"note", L"n");
    EXPECT_NE(std::string::npos, WriteXml(object, Plain(), context).find("xmlns=\"urn:d\""));
}

TEST(ReadWriteFunction, StreamsAreReadToTheirEnd)
{
    std::stringstream stream;
    stream.exceptions(std::ios_base::failbit | std::ios_base::badbit);
    TestObject object(NoteClass());
    object.Set(L"note", std::wstring(200000, L'n').c_str());
    WriteXml(object, stream, Plain());
    EXPECT_TRUE(Narrow(DescribeObject(object)) == After([&](auto& read) { ReadXml(read, stream); }));
    EXPECT_TRUE(stream.eof());
    EXPECT_FALSE(stream.fail());

    std::istringstream text(document);
    CXmlDocument tree;
    ReadXml(tree, text);
    EXPECT_EQ(L"order", tree.GetDocumentElement()->GetLocalName());
}

TEST(ReadWriteFunction, StreamsThatFail)
{
    std::stringstream bad;
    bad.setstate(std::ios_base::badbit);
    std::ifstream directory("/");
    const std::string unread = "Zr: The input stream cannot be read.order{}";
    EXPECT_EQ(unread, After([&](auto& read) { ReadXml(read, bad); }));
    EXPECT_EQ(unread, After([&](auto& read) { ReadXml(read, directory); }));
    EXPECT_EQ("Zr: The output stream cannot be written.order{note=n}", After([&](auto& object) {
        object.Set(L"note", L"n");
        WriteXml(object, bad);
    }));
    std::ostringstream out;
    TestObject invalid(Class(L"order").Prim(L"note", ItemType_i4));
    EXPECT_NE("", FailureOf([&] { WriteXml(invalid, out); }));
    EXPECT_EQ("", out.str());
}

TEST(ReadWriteFunction, FilesAreNamedByPaths)
{
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("zrxml_caf\xC3\xA9" + std::to_string(getpid()) + ".xml");
    TestObject object(NoteClass());
    object.Set(L"note", L"caf\u00e9").Set(L"id", L"\xd83d\xde00");
    WriteXmlFile(object, file, Plain());
    EXPECT_EQ(document.length(), std::filesystem::file_size(file));
    EXPECT_EQ(description, After([&](auto& read) { ReadXmlFile(read, file); }));
    EXPECT_EQ(description, After([&](auto& read) { ReadXmlFile(read, file.native()); }));
    EXPECT_EQ(description, After([&](auto& read) { ReadXmlFile(read, file.c_str()); }));
    CXmlDocument tree;
    ReadXmlFile(tree, file);
    EXPECT_EQ(L"order", tree.GetDocumentElement()->GetLocalName());
    std::filesystem::remove(file);
    EXPECT_NE("", After([&](auto& read) { ReadXmlFile(read, file); }));

    for (const std::string& name : {std::string("\xE9.xml"), std::string("a\0b", 3), std::string("\xED\xA0\x80")}) {
        EXPECT_THROW(WriteXmlFile(object, name), CZrInvalidParamException);
    }
}

const std::string jsonDocument = "{\"order\": {\"@id\": \"\xF0\x9F\x98\x80\",\"note\": \"caf\xC3\xA9\"}}";

TEST(ReadWriteFunction, Json)
{
    TestObject object(NoteClass());
    object.Set(L"note", L"caf\u00e9").Set(L"id", L"\xd83d\xde00");
    JsonOutputOptions options;
    options.formatted = false;
    EXPECT_EQ(jsonDocument, WriteJson(object, options));
    EXPECT_NE(jsonDocument, WriteJson(object));
    EXPECT_EQ(description, After([](auto& read) { ReadJson(read, jsonDocument); }));
    EXPECT_EQ(description, After([&](auto& read) { ReadJson(read, WriteJson(object, options)); }));

    std::stringstream stream;
    WriteJson(object, stream);
    EXPECT_EQ(WriteJson(object), stream.str());
    EXPECT_EQ(description, After([&](auto& read) { ReadJson(read, stream); }));

    CXmlDocument tree;
    std::istringstream again(jsonDocument);
    ReadJson(tree, again);
    EXPECT_EQ(L"caf\u00e9", tree.GetDocumentElement()->GetFirstElement()->GetText());
    EXPECT_NE("", After([](auto& read) { ReadJson(read, std::string_view()); }));

    CSerializationContext context;
    context.GetJsonContext().SetRootElementName(L"order");
    EXPECT_EQ("order{note=n}", After([&](auto& read) { ReadJson(read, "{\"note\":\"n\"}", context); }));
}

TEST(ReadWriteFunction, FastInfoset)
{
    TestObject object(NoteClass());
    object.Set(L"note", L"caf\u00e9").Set(L"id", L"\xd83d\xde00");
    const std::string bytes = WriteFastInfoset(object);
    EXPECT_EQ(std::string("\xE0\0\0\1", 4), bytes.substr(0, 4));
    FastInfosetOutputOptions options;
    options.declaration = FInfoDecl_10EncYes;
    for (const std::string& octets : {bytes, WriteFastInfoset(object, options)}) {
        EXPECT_EQ(description, After([&](auto& read) { ReadXml(read, octets); }));
    }
    std::stringstream stream;
    WriteFastInfoset(object, stream);
    EXPECT_EQ(bytes, stream.str());
}

TEST(ReadWriteFunction, TheOtherFormatsAreCompressed)
{
    TestObject object(NoteClass());
    object.Set(L"note", std::wstring(1000, L'n').c_str());
    JsonOutputOptions jsonOptions;
    jsonOptions.compression = Compression_GZip;
    FastInfosetOutputOptions fastInfosetOptions;
    fastInfosetOptions.compression = Compression_ZLib;
    const std::string json = WriteJson(object, jsonOptions), fastInfoset = WriteFastInfoset(object, fastInfosetOptions);
    EXPECT_LT(json.length(), 200U);
    EXPECT_LT(fastInfoset.length(), 200U);
    const std::string expected = Narrow(DescribeObject(object));
    EXPECT_EQ(expected, After([&](auto& read) { ReadJson(read, json); }));
    EXPECT_EQ(expected, After([&](auto& read) { ReadXml(read, fastInfoset); }));
}

TEST(ReadWriteFunction, FilesOfTheOtherFormats)
{
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("zrxml_other\xC3\xA9" + std::to_string(getpid()));
    TestObject object(NoteClass());
    object.Set(L"note", L"caf\u00e9").Set(L"id", L"\xd83d\xde00");
    WriteJsonFile(object, file);
    EXPECT_EQ(description, After([&](auto& read) { ReadJsonFile(read, file); }));
    WriteFastInfosetFile(object, file);
    EXPECT_EQ(description, After([&](auto& read) { ReadXmlFile(read, file); }));
    std::filesystem::remove(file);
}

} // namespace
