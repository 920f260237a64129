// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

class Version : public testing::Test {
protected:
    ~Version() override { Register(16, 1, "", "", ""); }
};

const char notice[] =
    "\n-----------------Version Mismatch-----------------\nVelloc XML 2018 - Version Mismatch Error\nPlease ensure "
    "your generated code is the same version as this library (Velloc Runtime: v16.1, Generator: v16.0).\n";

} // namespace

TEST_F(Version, keeps_NoticeOnBothStreamsBeforeTheException)
{
    const TestClass type = Class(L"order").Prim(L"qty").Opt();
    const TestObject object(type);
    Register(16, 0, "a", "b", "c");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    // The notice also comes through once the program has printed something of its own.
    printf("own output\n");
    const std::string failure = Write(object);
    printf("own output\n");
    fflush(stdout);
    EXPECT_EQ(notice, testing::internal::GetCapturedStderr());
    EXPECT_EQ(std::string("own output\n") + notice + "own output\n", testing::internal::GetCapturedStdout());
    EXPECT_EQ("Zr: Wrong Version (Velloc Runtime: v16.1, Generator: v16.0)", failure);
}

TEST_F(Version, EveryEntryPointChecksBeforeAnythingElse)
{
    const TestClass type = Class(L"order").Prim(L"qty").Opt();
    TestObject object(type);
    CXmlElement element(nullptr, nullptr);
    const std::wstring file = (std::filesystem::temp_directory_path() / "zrxml_version_test.xml").wstring();
    const CSerializationContext context;
    const std::function<void()> entryPoints[] = {
        [&] { object.ToXml(); },
        [&] { object.ToXmlStream(); },
        [&] { object.ToXmlFile(file.c_str()); },
        [&] { object.ToXmlFile(file.c_str(), true, true, Encoding_UTF8, EOL_LF, context, Compression_ZLib); },
        [&] { object.FromXml("<order/>"); },
        [&] { object.FromXml(L""); },
        [&] { object.FromXmlFile(L"/no/such/file"); },
        [&] { object.FromXmlStream(CBinaryData()); },
        [&] { object.FromXmlStream(reinterpret_cast<const unsigned char*>("<a/>"), 4); },
        [&] { object.FromXmlElement(&element); },
    };
    const int versions[][2] = {{0, 0}, {16, 0}, {16, 2}, {15, 1}, {1, 16}};
    for (const auto& version : versions) {
        Register(version[0], version[1], nullptr, nullptr, nullptr);
        EXPECT_EQ(version[0], GetRegisteredMajor());
        EXPECT_EQ(version[1], GetRegisteredMinor());
        const std::string expected = "Zr: Wrong Version (Velloc Runtime: v16.1, Generator: v"
            + std::to_string(version[0]) + "." + std::to_string(version[1]) + ")";
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        for (const auto& call : entryPoints)
            EXPECT_EQ(expected, FailureOf(call)) << &call - entryPoints;
        testing::internal::GetCapturedStdout();
        testing::internal::GetCapturedStderr();
        EXPECT_FALSE(std::filesystem::exists(file));
    }
}
