// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrZip.h"
#include "support/TestText.h"
#include "xml/TreeText.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <functional>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::TreeText;

namespace {

class LoadingFile : public testing::Test {
protected:
    LoadingFile()
    {
        char name[] = "/tmp/zrxml_loading_XXXXXX";
        m_folder = mkdtemp(name);
        chmod(name, 0755);
    }
    ~LoadingFile() override
    {
        unlink(Path("file.xml").c_str());
        unlink(Path("caf\xC3\xA9.xml").c_str());
        rmdir(m_folder.c_str());
    }

    std::string Path(const std::string& name) const { return m_folder + "/" + name; }
    void Write(const std::string& name, const char* text) const { std::ofstream(Path(name)) << text; }
    std::wstring WidePath(const std::wstring& name) const
    {
        return std::wstring(m_folder.begin(), m_folder.end()) + L"/" + name;
    }
    static std::wstring LoadMessage(const std::wstring& name)
    {
        CXmlDocument document;
        return MessageOf<CZrException>([&] { document.Load(name.c_str()); });
    }

private:
    std::string m_folder;
};

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
    for (const auto& load : loads) {
        EXPECT_EQ(L"XML String is empty!", MessageOf<CZrException>(load));
    }
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
    document.Load(WidePath(L"caf\u00E9.xml").c_str());
    EXPECT_EQ(L"a 'x\ny'", TreeText(document.GetDocumentElement()));
}

TEST_F(LoadingFile, ReportsWhatFailed)
{
    Write("file.xml", "");
    const std::wstring empty = WidePath(L"file.xml");
    const std::wstring missing = WidePath(L"100%n%s.xml");
    const std::wstring folder = WidePath(L"");
    EXPECT_EQ(L"Failed to read the contents of the file [" + empty + L"] Error [0]", LoadMessage(empty));
    EXPECT_EQ(L"Failed to open the file [" + missing + L"].", LoadMessage(missing));
    EXPECT_EQ(L"Failed to get the size of the file [" + folder + L"] Error [0]", LoadMessage(folder));
    CXmlDocument document;
    EXPECT_EQ(L"Failed to open the file [].", MessageOf<CZrException>([&] { document.Load(nullptr); }));
}

TEST_F(LoadingFile, ReportsAnUnreadableFile)
{
    Write("file.xml", "<a/>");
    chmod(Path("file.xml").c_str(), 0);
    const std::wstring name = WidePath(L"file.xml");
    const pid_t child = fork();
    if (child == 0) {
        const bool isUnprivileged = geteuid() != 0 || setuid(65534) == 0;
        _exit(isUnprivileged && LoadMessage(name) == L"Failed to open the file [" + name + L"]." ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(child, waitpid(child, &status, 0));
    EXPECT_EQ(0, status);
}
