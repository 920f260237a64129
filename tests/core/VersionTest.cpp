// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <cstdio>
#include <filesystem>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

class Version : public testing::Test {
protected:
    ~Version() override { Register(16, 1, "", "", ""); }
    TestObject m_object{Class(L"order").Prim(L"qty").Opt()};
};

const char notice[] =
    "\n-----------------Version Mismatch-----------------\nVelloc XML 2018 - Version Mismatch Error\nPlease ensure "
    "your generated code is the same version as this library (Velloc Runtime: v16.1, Generator: v16.0).\n";

} // namespace

TEST_F(Version, keeps_NoticeOnBothStreamsBeforeTheException)
{
    Register(16, 0, "a", "b", "c");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    // The notice also comes through once the program has printed something of its own.
    printf("own output\n");
    const std::string failure = Write(m_object);
    printf("own output\n");
    fflush(stdout);
    EXPECT_EQ(notice, testing::internal::GetCapturedStderr());
    EXPECT_EQ(std::string("own output\n") + notice + "own output\n", testing::internal::GetCapturedStdout());
    EXPECT_EQ("Zr: Wrong Version (Velloc Runtime: v16.1, Generator: v16.0)", failure);
}

TEST_F(Version, EveryEntryPointChecksBeforeAnythingElse)
{
    CXmlElement element(nullptr, nullptr);
    const std::wstring file = (std::filesystem::temp_directory_path() / "zrxml_version_test.xml").wstring();
    const std::function<void()> entryPoints[] = {
        [&] { m_object.ToXml(); },
        [&] { m_object.ToXmlStream(); },
        [&] { m_object.ToXmlFile(file.c_str()); },
        [&] { m_object.ToXmlFile(file.c_str(), true, true, Encoding_UTF8, EOL_LF, {}, Compression_ZLib); },
        [&] { m_object.FromXml("<order/>"); },
        [&] { m_object.FromXml(L""); },
        [&] { m_object.FromXmlFile(L"/no/such/file"); },
        [&] { m_object.FromXmlStream(CBinaryData()); },
        [&] { m_object.FromXmlStream(reinterpret_cast<const unsigned char*>("<a/>"), 4); },
        [&] { m_object.FromXmlElement(&element); },
    };
    for (const char* version : {"16.2", "15.1"}) {
        Register(version[1] - '0' + 10, version[3] - '0', nullptr, nullptr, nullptr);
        const std::string expected =
            "Zr: Wrong Version (Velloc Runtime: v16.1, Generator: v" + std::string(version) + ")";
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        for (const auto& call : entryPoints)
            EXPECT_EQ(expected, FailureOf(call)) << &call - entryPoints;
        testing::internal::GetCapturedStdout();
        testing::internal::GetCapturedStderr();
        EXPECT_FALSE(std::filesystem::exists(file));
    }
}
