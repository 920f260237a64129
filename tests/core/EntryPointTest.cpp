// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <unistd.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const TestClass& OrderClass()
{
    static const TestClass type =
        Class(L"order").Prim(L"note").Cls(L"item", Class(L"item").Prim(L"qty", ItemType_i4)).Col();
    return type;
}

void Fill(TestObject& order)
{
    order.Set(L"note", L"caf\u00e9\n\"x\" & y");
    for (int i = 0; i < 20; ++i)
        order.Add(L"item")->Set(L"qty", std::to_wstring(i).c_str());
}

std::string Bytes(const CBinaryData& data)
{
    return std::string(reinterpret_cast<const char*>(data.GetData()), data.GetLength());
}

/// A folder of its own, gone with the test.
class EntryPoint : public testing::Test {
protected:
    EntryPoint()
        : m_order(OrderClass())
    {
        std::filesystem::create_directories(m_folder);
        Fill(m_order);
    }
    ~EntryPoint() override
    {
        AsyncToXmlFile(false);
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }
    std::wstring File(const wchar_t* name) const { return m_folder.wstring() + L"/" + name; }
    std::string Content(const wchar_t* name) const
    {
        std::ifstream stream(m_folder / Narrow(name), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }

    const std::filesystem::path m_folder =
        std::filesystem::temp_directory_path() / ("zrxml_entry_" + std::to_string(getpid()));
    TestObject m_order;
    const CSerializationContext m_context;
};

} // namespace

TEST_F(EntryPoint, TextFormsFollowHeaderFormatLineEndsAndIndent)
{
    const TestClass type = Class(L"order").Prim(L"note").Cls(L"item", Class(L"item").Prim(L"qty"));
    TestObject order(type);
    order.Set(L"note", L"a\nb");
    order.Add(L"item")->Set(L"qty", L"1");
    EXPECT_EQ(L"<order><note>a\nb</note><item><qty>1</qty></item></order>", order.ToXml(false, false));
    EXPECT_EQ(
        L"<?xml version=\"1.0\"?>\n<order>\n\t<note>a\nb</note>\n\t<item>\n\t\t<qty>1</qty>\n\t</item>\n</order>\n",
        order.ToXml());
    CSerializationContext context;
    context.SetIndentChars(L"  ");
    EXPECT_EQ(L"<order>\r\n  <note>a\r\nb</note>\r\n  <item>\r\n    <qty>1</qty>\r\n  </item>\r\n</order>\r\n",
        order.ToXml(false, true, EOL_CRLF, context));
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<order><note>a\nb</note><item><qty>1</qty></item></order>",
        Bytes(order.ToXmlStream(true, false)));
    EXPECT_EQ("Zr: Invalid EOL type.", FailureOf([&] { order.ToXml(false, false, static_cast<EOLType>(5)); }));
}

TEST_F(EntryPoint, EveryFormReadsBack)
{
    const std::wstring expected = DescribeObject(m_order);
    const struct {
        const char* name;
        XmlEncoding encoding;
        CompressionType compression;
    } rows[] = {{"utf-8", Encoding_UTF8, Compression_None}, {"gzip", Encoding_UTF8, Compression_GZip},
        {"zlib", Encoding_UTF8, Compression_ZLib}};
    for (const auto& row : rows) {
        const CBinaryData bytes = m_order.ToXmlStream(true, true, row.encoding, EOL_LF, m_context, row.compression);
        TestObject fromData(OrderClass()), fromBytes(OrderClass()), fromFile(OrderClass());
        fromData.FromXmlStream(bytes);
        EXPECT_EQ(expected, DescribeObject(fromData)) << row.name;
        fromBytes.FromXmlStream(bytes.GetData(), bytes.GetLength());
        EXPECT_EQ(expected, DescribeObject(fromBytes)) << row.name;
        if (row.compression == Compression_ZLib)
            continue;
        m_order.ToXmlFile(File(L"caf\u00e9.xml").c_str(), true, true, row.encoding, EOL_LF, m_context, row.compression);
        EXPECT_EQ(Bytes(bytes), Content(L"caf\u00e9.xml"));
        fromFile.FromXmlFile(File(L"caf\u00e9.xml").c_str());
        EXPECT_EQ(expected, DescribeObject(fromFile)) << row.name;
    }
    TestObject fromWide(OrderClass()), fromNarrow(OrderClass());
    fromWide.FromXml(m_order.ToXml().c_str());
    EXPECT_EQ(expected, DescribeObject(fromWide));
    fromNarrow.FromXml(Narrow(m_order.ToXml(false)).c_str());
    EXPECT_EQ(expected, DescribeObject(fromNarrow));
}

TEST_F(EntryPoint, CompressedFileHasNoByteOrderMark)
{
    m_order.ToXmlFile(File(L"a.gz").c_str(), true, true, Encoding_UTF16, EOL_LF, m_context, Compression_GZip);
    EXPECT_EQ("\x1F\x8B", Content(L"a.gz").substr(0, 2));
    EXPECT_EQ(
        Bytes(m_order.ToXmlStream(true, true, Encoding_UTF16, EOL_LF, m_context, Compression_GZip)), Content(L"a.gz"));
    // Inflated, it is what the stream form holds.
    TestObject order(OrderClass());
    const std::string expected =
        FailureOf([&] { order.FromXmlStream(m_order.ToXmlStream(true, true, Encoding_UTF16)); });
    EXPECT_EQ(expected, FailureOf([&] { order.FromXmlFile(File(L"a.gz").c_str()); }));
    m_order.ToXmlFile(File(L"a.xml").c_str(), true, true, Encoding_UTF16);
    EXPECT_EQ("\xFF\xFE", Content(L"a.xml").substr(0, 2));
}

TEST_F(EntryPoint, keeps_RefusalOfZlibForFilesOnly)
{
    const std::wstring file = File(L"z.xml");
    EXPECT_EQ("Zr: ZLIB Compression only available for To Stream methods.", FailureOf([&] {
        m_order.ToXmlFile(file.c_str(), true, true, Encoding_UTF8, EOL_LF, m_context, Compression_ZLib);
    }));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_LT(0U, m_order.ToXmlStream(true, true, Encoding_UTF8, EOL_LF, m_context, Compression_ZLib).GetLength());
    AsyncToXmlFile(true);
    EXPECT_EQ("Zr: ZLIB Compression only available for To Stream methods.", FailureOf([&] {
        m_order.ToXmlFile(file.c_str(), true, true, Encoding_UTF8, EOL_LF, m_context, Compression_ZLib);
    }));
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(EntryPoint, AsynchronousFilesAreWrittenDirectly)
{
    const std::wstring file = File(L"a.xml");
    m_order.ToXmlFile(file.c_str());
    const std::string buffered = Content(L"a.xml");
    AsyncToXmlFile(true);
    m_order.ToXmlFile(file.c_str());
    EXPECT_EQ(buffered, Content(L"a.xml"));
    m_order.ToXmlFile(File(L"a.gz").c_str(), true, true, Encoding_UTF8, EOL_LF, m_context, Compression_GZip);
    EXPECT_EQ("\x1F\x8B", Content(L"a.gz").substr(0, 2));
    // Only the direct path touches the file before the object has been written.
    m_order.Add(L"item");
    EXPECT_NE("", FailureOf([&] { m_order.ToXmlFile(file.c_str()); }));
    EXPECT_GT(buffered.length(), Content(L"a.xml").length());
    AsyncToXmlFile(false);
    const std::wstring absent = File(L"absent.xml");
    EXPECT_NE("", FailureOf([&] { m_order.ToXmlFile(absent.c_str()); }));
    EXPECT_FALSE(std::filesystem::exists(absent));
}

TEST_F(EntryPoint, DocumentFailuresArriveUnwrapped)
{
    TestObject order(OrderClass());
    EXPECT_EQ("Zr: XML String is empty!", FailureOf([&] { order.FromXml(""); }));
    EXPECT_EQ("Zr: XML String is empty!", FailureOf([&] { order.FromXml(L""); }));
    EXPECT_EQ("Zr: XML Stream is empty!", FailureOf([&] { order.FromXmlStream(CBinaryData()); }));
    EXPECT_EQ("Zr: Failed to open the file [" + Narrow(File(L"none.xml")) + "].",
        FailureOf([&] { order.FromXmlFile(File(L"none.xml").c_str()); }));
    EXPECT_EQ("Zr: mismatched tag at line 2", FailureOf([&] { order.FromXml("<order>\n</ordr>"); }));
    EXPECT_EQ("Zr: no element found at line 1", FailureOf([&] { order.FromXml("<order>"); }));
}

TEST_F(EntryPoint, ElementOfAnotherDocument)
{
    CXmlDocument document;
    document.LoadXml(
        "<orders><order><note>a</note></order><order><note>b</note><item><qty>1</qty></item></order></orders>");
    TestObject order(OrderClass());
    const CXmlElement* second = document.GetDocumentElement()->GetFirstElement()->GetNextSiblingElement();
    order.FromXmlElement(second);
    EXPECT_EQ(L"order{note=b,item=[item{qty=1}]}", DescribeObject(order));
    EXPECT_EQ("Zr: Failed to find the required child element [note].\nPath: /orders",
        FailureOf([&] { order.FromXmlElement(document.GetDocumentElement()); }));
    EXPECT_EQ("Zr: The document has no root element.",
        FailureOf([&] { order.FromXmlElement(static_cast<const CXmlElement*>(nullptr)); }));
}

TEST_F(EntryPoint, DefaultElementValuesAreWrittenOnRequest)
{
    const TestClass type = Class(L"order").Prim(L"note").Default(L"none").Enum(L"colour").Default(L"red");
    TestObject order(type);
    order.Set(L"note", L"none").Set(L"colour", L"red");
    CSerializationContext context;
    EXPECT_EQ("<order><note/><colour/></order>", Write(order, context));
    EXPECT_EQ("order{note=none,colour=red}", Read(type, L"<order><note/><colour/></order>"));
    context.SetWriteDefaultElementValues(true);
    EXPECT_EQ("<order><note>none</note><colour>red</colour></order>", Write(order, context));
}
