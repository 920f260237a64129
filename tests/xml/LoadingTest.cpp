// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrZip.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::TreeText;

namespace {

/// A folder of its own for each test.
class LoadingFile : public testing::Test {
protected:
    LoadingFile()
    {
        char name[] = "/tmp/zrxml_loading_XXXXXX";
        m_folder = mkdtemp(name);
    }
    ~LoadingFile() override { std::filesystem::remove_all(m_folder); }

    void Write(const char* name, const char* text) const { std::ofstream(m_folder / name) << text; }
    std::wstring Name(const std::wstring& name) const { return m_folder.wstring() + L"/" + name; }

    std::filesystem::path m_folder;
};

std::wstring LoadMessage(const wchar_t* name)
{
    CXmlDocument document;
    return MessageOf<CZrException>([&] { document.Load(name); });
}

std::wstring StreamTree(const std::string& bytes)
{
    CXmlDocument document;
    document.LoadXmlStream(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    return TreeText(document.GetDocumentElement());
}

} // namespace

TEST(Loading, RefusesEmptyInput)
{
    CXmlDocument document;
    document.LoadXml("<old/>");
    const unsigned char byte = 0;
    const std::function<void()> loads[] = {[&] { document.LoadXml(""); }, [&] { document.LoadXml(L""); },
        [&] { document.LoadXml(static_cast<const char*>(nullptr)); },
        [&] { document.LoadXml(static_cast<const wchar_t*>(nullptr)); }};
    for (const auto& load : loads)
        EXPECT_EQ(L"XML String is empty!", MessageOf<CZrException>(load));
    EXPECT_EQ(L"XML Stream is empty!", MessageOf<CZrException>([&] { document.LoadXmlStream(&byte, 0); }));
    EXPECT_EQ(L"XML Stream is empty!", MessageOf<CZrException>([&] { document.LoadXmlStream(nullptr, 1); }));
    EXPECT_EQ(nullptr, document.GetDocumentElement());
}

TEST(Loading, AcceptsEveryEncodingInAStream)
{
    EXPECT_EQ(L"a '\u00E9'", StreamTree("<a>\xC3\xA9</a>"));
    EXPECT_EQ(L"a '\u00E9'", StreamTree(std::string("\xFF\xFE<\0a\0>\0\xE9\0<\0/\0a\0>\0", 18)));
    EXPECT_EQ(L"a '\u00E9'", StreamTree(std::string("\xFE\xFF\0<\0a\0>\0\xE9\0<\0/\0a\0>", 18)));
    EXPECT_EQ(L"a '\u20AC'", StreamTree(std::string("<\0a\0>\0\xAC\x20<\0/\0a\0>\0", 16)));
}

// The parser gets the text in parts of four megabytes and more: characters, line ends and tokens lie across their
// edges.
TEST(Loading, JoinsThePartsOfALongText)
{
    std::string euros;
    for (int i = 0; i < 1500000; ++i) {
        euros += i % 100 == 99 ? "\r\n" : "\xE2\x82\xAC";
    }
    for (const std::size_t shift : {0U, 1U, 2U, 3U}) {
        const std::string text =
            std::string(shift, ' ') + "<a b=\"" + euros + "\"><!--" + euros + "-->" + euros + "</a>";
        CXmlDocument document;
        document.LoadXmlStream(reinterpret_cast<const unsigned char*>(text.data()), text.length());
        std::wstring expected;
        for (int i = 0; i < 1500000; ++i) {
            expected += i % 100 == 99 ? L'\n' : L'\x20AC';
        }
        EXPECT_TRUE(expected == document.GetDocumentElement()->GetText()) << shift;
        std::replace(expected.begin(), expected.end(), L'\n', L' ');
        EXPECT_TRUE(expected == document.GetDocumentElement()->GetAttribute(L"b", L"")) << shift;
    }
    const std::string broken = "<a>\n" + euros + "</b>";
    CXmlDocument document;
    EXPECT_EQ(L"mismatched tag at line 15002", MessageOf<CZrException>([&] {
        document.LoadXmlStream(reinterpret_cast<const unsigned char*>(broken.data()), broken.length());
    }));
}

TEST(Loading, DecompressesStreams)
{
    const std::string text = "<a>" + std::string(500, ' ') + "</a>";
    const std::wstring tree = StreamTree(text);
    for (CompressionType type : {Compression_GZip, Compression_ZLib}) {
        CBinaryData bytes;
        bytes.Append(reinterpret_cast<const unsigned char*>(text.data()), text.size());
        CZrZip::CompressData(bytes, type);
        const std::string compressed(reinterpret_cast<const char*>(bytes.GetData()), bytes.GetLength());
        EXPECT_TRUE(tree == StreamTree(compressed));
    }
}

TEST_F(LoadingFile, ReadsTheWholeFile)
{
    Write("caf\xC3\xA9.xml", "<a>x\r\ny</a>");
    CXmlDocument document;
    document.Load(Name(L"caf\u00E9.xml").c_str());
    EXPECT_EQ(L"a 'x\ny'", TreeText(document.GetDocumentElement()));
}

TEST_F(LoadingFile, ReportsWhatFailed)
{
    Write("file.xml", "");
    const std::wstring empty = Name(L"file.xml");
    const std::wstring missing = Name(L"100%n%s.xml");
    const std::wstring folder = Name(L"");
    EXPECT_EQ(L"Failed to read the contents of the file [" + empty + L"] Error [0]", LoadMessage(empty.c_str()));
    EXPECT_EQ(L"Failed to open the file [" + missing + L"].", LoadMessage(missing.c_str()));
    EXPECT_EQ(L"Failed to get the size of the file [" + folder + L"] Error [0]", LoadMessage(folder.c_str()));
    EXPECT_EQ(L"Failed to open the file [].", LoadMessage(nullptr));
}

TEST_F(LoadingFile, ReportsAnUnreadableFile)
{
    Write("file.xml", "<a/>");
    std::filesystem::permissions(m_folder, std::filesystem::perms(0755));
    std::filesystem::permissions(m_folder / "file.xml", std::filesystem::perms::none);
    const std::wstring name = Name(L"file.xml");
    // Root may read everything, so the child gives up its rights.
    const pid_t child = fork();
    if (child == 0) {
        const bool isUnprivileged = geteuid() != 0 || setuid(65534) == 0;
        _exit(isUnprivileged && LoadMessage(name.c_str()) == L"Failed to open the file [" + name + L"]." ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    EXPECT_EQ(0, status);
}
