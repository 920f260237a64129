// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BinaryStream.h"
#include "ZrXmlLib16/FileBinaryStream.h"
#include "ZrXmlLib16/FileTextStream.h"
#include "ZrXmlLib16/ZrException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <unistd.h>

using namespace ZrXmlLib16;

namespace {

class FileStream : public testing::Test {
protected:
    FileStream()
        : m_folder(std::filesystem::temp_directory_path() / ("zrxml_streams_" + std::to_string(getpid())))
    {
        std::filesystem::create_directories(m_folder);
    }

    ~FileStream() override { std::filesystem::remove_all(m_folder); }

    std::wstring Name(const wchar_t* file) const { return m_folder.wstring() + L'/' + file; }

    static std::string ReadFile(const std::wstring& name)
    {
        std::ifstream file(TestSupport::Narrow(name), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }

    std::filesystem::path m_folder;
};

template <class Action> void ExpectNotWritten(const std::wstring& name, Action action)
{
    EXPECT_EQ(L"Failed to write data to the file [" + name + L"].", TestSupport::MessageOf<CZrException>(action));
}

} // namespace

TEST_F(FileStream, TextIsFlushedInPartsAndTheFileReplaced)
{
    const std::wstring name = Name(L"caf\u00E9 \u20AC.xml"); // the C locale knows none of these letters
    for (const std::wstring& text : {std::wstring(L"a long first text"), std::wstring(L"\u20AC\xD83D\xDE00")}) {
        CFileTextStream stream(name.c_str(), Encoding_UTF8);
        stream.Open();
        stream.Append(L"a text that is overwritten");
        stream.Flush();
        stream.Append(L"dropped");
        stream.Open();
        stream.Append(text);
        stream.Flush();
        EXPECT_EQ(TestSupport::Narrow(text), ReadFile(name));
        stream.Flush();
        stream.Append(L"end");
        stream.Close();
        EXPECT_EQ(TestSupport::Narrow(text + L"end"), ReadFile(name));
    }
}

TEST_F(FileStream, DestructionWritesWhatIsLeftAndReportsNothing)
{
    {
        CFileTextStream stream(Name(L"a").c_str(), Encoding_UTF8);
        stream.Open();
        stream.Append(L"text");
        CFileTextStream undecided(Name(L"b").c_str(), Encoding_None);
        undecided.Open();
        undecided.Append(L"text");
    }
    EXPECT_EQ("text", ReadFile(Name(L"a")));
    EXPECT_EQ("", ReadFile(Name(L"b")));
}

TEST_F(FileStream, WithoutAnOpenFileCloseDoesNothingAndFlushFails)
{
    CFileTextStream stream(Name(L"a").c_str(), Encoding_UTF8);
    stream.Flush();
    stream.Close();
    stream.Append(L"text");
    EXPECT_EQ(L"Failed to write data to the file", TestSupport::MessageOf<CZrException>([&] { stream.Flush(); }));
    stream.Close();
    EXPECT_STREQ(L"text", stream.GetText());
}

TEST_F(FileStream, keeps_TheMarkBeforeWideUnitsAndWidenedOctets)
{
    for (const XmlEncoding encoding : {Encoding_UTF8, Encoding_UTF16, Encoding_Wide}) {
        SCOPED_TRACE(encoding);
        const std::string mark = encoding == Encoding_UTF8 ? "" : "\xFF\xFE";
        CFileTextStream text(Name(L"a").c_str(), encoding);
        text.Open();
        EXPECT_EQ(mark, ReadFile(Name(L"a")));
        text.Append(L"z");
        text.Close();
        const std::size_t width = encoding == Encoding_UTF8 ? 1 : encoding == Encoding_UTF16 ? 2 : 4;
        EXPECT_EQ(mark + std::string("z\0\0\0", width), ReadFile(Name(L"a")));

        CFileBinaryStream binary(Name(L"b").c_str(), encoding);
        binary.Append(static_cast<unsigned char>('z'));
        binary.ToFile();
        EXPECT_EQ(mark + 'z', ReadFile(Name(L"b")));
    }
}

TEST_F(FileStream, UnwritableFilesAreReportedWithTheirName)
{
    for (const std::wstring& name : {Name(L"missing/\u20AC"), m_folder.wstring(), std::wstring()}) {
        for (const XmlEncoding encoding : {Encoding_UTF8, Encoding_Wide}) {
            CFileTextStream text(name.c_str(), encoding);
            ExpectNotWritten(name, [&] { text.Open(); });
            text.Close();
            CFileBinaryStream binary(name.c_str(), encoding);
            ExpectNotWritten(name, [&] { binary.ToFile(); });
        }
    }
    ExpectNotWritten(L"", [] { CFileTextStream(nullptr, Encoding_UTF8).Open(); });
}

TEST_F(FileStream, AFullDiskIsReported)
{
    const wchar_t* const full = L"/dev/full";
    CFileTextStream marked(full, Encoding_UTF16);
    ExpectNotWritten(full, [&] { marked.Open(); });
    CFileTextStream text(full, Encoding_UTF8);
    text.Open();
    text.Append(L"x");
    EXPECT_EQ(L"Failed to write data to the file", TestSupport::MessageOf<CZrException>([&] { text.Flush(); }));
    text.Close(); // the file was closed by the failure
    CFileBinaryStream binary(full, Encoding_UTF8);
    binary.Append(static_cast<unsigned char>('x'));
    ExpectNotWritten(full, [&] { binary.ToFile(); });
}

TEST_F(FileStream, BinaryStreamsAppendToTheirOwnOrTheCallersBuffer)
{
    CBinaryData target;
    CFileBinaryStream file(Name(L"a").c_str(), Encoding_UTF8, target);
    CBinaryStream own;
    CBinaryStream given(target);
    for (CBinaryStream* stream : {&own, &given}) {
        stream->Append(static_cast<unsigned char>(0));
        stream->Append(reinterpret_cast<const unsigned char*>("\r\n"), 2);
        stream->Append(stream->GetBinaryStream());
    }
    EXPECT_TRUE(target == own.GetBinaryStream());
    file.ToFile();
    EXPECT_EQ(std::string("\0\r\n\0\r\n", 6), ReadFile(Name(L"a")));
}
