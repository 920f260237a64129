// SPDX-License-Identifier: MIT
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
    static const TestClass type =
        Class(L"order").Prim(L"note").Cls(L"item", Class(L"item").Prim(L"qty", ItemType_i4)).Col();
    return type;
}

std::string Bytes(const CBinaryData& data)
{
    return std::string(reinterpret_cast<const char*>(data.GetData()), data.GetLength());
}

/// Files are gone with the test.
class EntryPoint : public testing::Test {
protected:
    EntryPoint()
    {
        m_order.Set(L"note", L"caf\u00e9\n\"x\" & y");
        for (int i = 0; i < 20; ++i)
            m_order.Add(L"item")->Set(L"qty", std::to_wstring(i).c_str());
    }
    ~EntryPoint() override
    {
        AsyncToXmlFile(false);
        std::filesystem::remove(m_file);
    }
    std::string Stream(XmlEncoding encoding, CompressionType compression) const
    {
        return Bytes(m_order.ToXmlStream(true, true, encoding, EOL_LF, CSerializationContext(), compression));
    }
    std::string Save(XmlEncoding encoding = Encoding_UTF8, CompressionType compression = Compression_None) const
    {
        m_order.ToXmlFile(m_name.c_str(), true, true, encoding, EOL_LF, CSerializationContext(), compression);
        return Content();
    }
    std::string Content() const
    {
        std::ifstream stream(m_file, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }

    const std::wstring m_name =
        std::filesystem::temp_directory_path().wstring() + L"/zrxml_caf\u00e9" + std::to_wstring(getpid());
    const std::filesystem::path m_file = Narrow(m_name);
    TestObject m_order{OrderClass()}, m_read{OrderClass()};
};

} // namespace

TEST_F(EntryPoint, TextFormsFollowHeaderFormatLineEndsAndIndent)
{
    m_read.FromXml("<order><note>a\nb</note><item><qty>1</qty></item></order>");
    EXPECT_EQ(L"<order><note>a\nb</note><item><qty>1</qty></item></order>", m_read.ToXml(false, false));
    EXPECT_EQ(
        L"<?xml version=\"1.0\"?>\n<order>\n\t<note>a\nb</note>\n\t<item>\n\t\t<qty>1</qty>\n\t</item>\n</order>\n",
        m_read.ToXml());
    CSerializationContext context;
    context.SetIndentChars(L"  ");
    EXPECT_EQ(L"<order>\r\n  <note>a\r\nb</note>\r\n  <item>\r\n    <qty>1</qty>\r\n  </item>\r\n</order>\r\n",
        m_read.ToXml(false, true, EOL_CRLF, context));
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<order><note>a\nb</note><item><qty>1</qty></item></order>",
        Bytes(m_read.ToXmlStream(true, false)));
    EXPECT_EQ("Zr: Invalid EOL type.", FailureOf([&] { m_read.ToXml(false, false, static_cast<EOLType>(5)); }));
}

TEST_F(EntryPoint, EveryFormReadsBack)
{
    const std::wstring wide = m_order.ToXml();
    const std::string narrow = Narrow(m_order.ToXml(false));
    CXmlDocument document;
    document.LoadXml(("<orders>" + narrow + "</orders>").c_str());
    std::string bytes;
    const auto begin = [&] { return reinterpret_cast<unsigned char*>(bytes.data()); };
    const std::function<void()> forms[] = {
        [&] { m_read.FromXml(wide.c_str()); },
        [&] { m_read.FromXml(narrow.c_str()); },
        [&] { m_read.FromXmlStream(CBinaryData(begin(), bytes.length(), false)); },
        [&] { m_read.FromXmlStream(begin(), bytes.length()); },
        [&] { m_read.FromXmlFile(m_name.c_str()); },
        [&] { m_read.FromXmlElement(document.GetDocumentElement()->GetFirstElement()); },
    };
    for (const CompressionType compression : {Compression_None, Compression_ZLib, Compression_GZip}) {
        bytes = Stream(Encoding_UTF8, compression);
        EXPECT_EQ(bytes, compression == Compression_ZLib ? bytes : Save(Encoding_UTF8, compression));
        for (const auto& form : forms) {
            m_read.FromXml("<order><note/></order>");
            form();
            EXPECT_EQ(DescribeObject(m_order), DescribeObject(m_read)) << compression << " " << &form - forms;
        }
    }
}

TEST_F(EntryPoint, CompressedFileHasNoByteOrderMark)
{
    EXPECT_EQ("\xFF\xFE", Save(Encoding_UTF16).substr(0, 2));
    const std::string file = Save(Encoding_UTF16, Compression_GZip);
    EXPECT_EQ("\x1F\x8B", file.substr(0, 2));
    EXPECT_EQ(Stream(Encoding_UTF16, Compression_GZip), file);
    // Inflated, it is what the stream form holds.
    EXPECT_EQ(FailureOf([&] { m_read.FromXmlStream(m_order.ToXmlStream(true, true, Encoding_UTF16)); }),
        FailureOf([&] { m_read.FromXmlFile(m_name.c_str()); }));
}

TEST_F(EntryPoint, keeps_RefusalOfZlibForFilesOnly)
{
    for (const bool direct : {false, true}) {
        AsyncToXmlFile(direct);
        EXPECT_EQ("Zr: ZLIB Compression only available for To Stream methods.",
            FailureOf([&] { Save(Encoding_UTF8, Compression_ZLib); }));
        EXPECT_FALSE(std::filesystem::exists(m_file));
    }
}

TEST_F(EntryPoint, AsynchronousFilesAreWrittenDirectly)
{
    const std::string buffered = Save();
    AsyncToXmlFile(true);
    EXPECT_EQ("\x1F\x8B", Save(Encoding_UTF8, Compression_GZip).substr(0, 2));
    EXPECT_EQ(buffered, Save());
    // Only the direct path touches the file before the object has been written.
    m_order.Add(L"item");
    EXPECT_NE("", FailureOf([&] { Save(); }));
    EXPECT_GT(buffered.length(), Content().length());
    AsyncToXmlFile(false);
    std::filesystem::remove(m_file);
    EXPECT_NE("", FailureOf([&] { Save(); }));
    EXPECT_FALSE(std::filesystem::exists(m_file));
}

TEST_F(EntryPoint, DocumentFailuresArriveUnwrapped)
{
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"XML String is empty!", [&] { m_read.FromXml(""); }},
        {"XML String is empty!", [&] { m_read.FromXml(L""); }},
        {"XML Stream is empty!", [&] { m_read.FromXmlStream(CBinaryData()); }},
        {"Failed to open the file [/no/caf\xC3\xA9].", [&] { m_read.FromXmlFile(L"/no/caf\u00e9"); }},
        {"mismatched tag at line 2", [&] { m_read.FromXml("<order>\n</ordr>"); }},
        {"no element found at line 1", [&] { m_read.FromXml("<order>"); }},
        {"The document has no root element.", [&] { m_read.FromXmlElement(static_cast<const CXmlElement*>(nullptr)); }},
    };
    for (const auto& row : cases)
        EXPECT_EQ(std::string("Zr: ") + row.first, FailureOf(row.second));
}

TEST_F(EntryPoint, DefaultElementValuesAreWrittenOnRequest)
{
    TestObject order(Class(L"order").Prim(L"note").Default(L"none").Enum(L"colour").Default(L"red"));
    order.FromXml("<order><note/><colour/></order>");
    EXPECT_EQ("<order><note/><colour/></order>", Write(order));
    CSerializationContext context;
    context.SetWriteDefaultElementValues(true);
    EXPECT_EQ("<order><note>none</note><colour>red</colour></order>", Write(order, context));
}
