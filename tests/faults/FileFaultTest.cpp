// SPDX-License-Identifier: MIT
// Files that cannot be read or written: the documented exception, no descriptor left open, no success for half a file.
#include "support/Failure.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ZrXmlLib16;
using namespace TestSupport;
namespace fs = std::filesystem;

namespace {

std::size_t OpenDescriptors()
{
    const fs::directory_iterator entries("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

class FileFaults : public testing::Test {
protected:
    FileFaults()
        : m_folder(fs::temp_directory_path() / ("zrxml_files_" + std::to_string(getpid())))
        , m_object(Class(L"a").Prim(L"x"))
    {
        fs::create_directories(m_folder);
        m_object.Set(L"x", std::wstring(20000, L'x').c_str());
        m_descriptors = OpenDescriptors();
    }
    ~FileFaults() override
    {
        AsyncToXmlFile(false);
        EXPECT_EQ(m_descriptors, OpenDescriptors());
        fs::remove_all(m_folder);
    }

    std::wstring Name(const wchar_t* file) const { return m_folder.wstring() + L'/' + file; }

    /// The distinct failures to read the file as XML and as JSON; the name is replaced by "F".
    std::string ReadFailures(const std::wstring& name)
    {
        TestObject object(Class(L"a").Prim(L"x"));
        return Both(
            name, [&] { object.FromXmlFile(name.c_str()); }, [&] { object.FromJsonFile(name.c_str()); });
    }

    /// The distinct failures to write the file in all formats, at once and piece by piece.
    std::string WriteFailures(const std::wstring& name)
    {
        std::string failures;
        for (const bool isDirect : {false, true}) {
            AsyncToXmlFile(isDirect);
            failures += (isDirect ? " | " : "")
                + Both(
                    name, [&] { m_object.ToXmlFile(name.c_str()); }, [&] { m_object.ToJsonFile(name.c_str()); });
        }
        const std::string infoset = FailureOf([&] { m_object.ToFastInfosetFile(name.c_str()); });
        EXPECT_EQ("Zr: Failed to write data to the file [" + Narrow(name) + "].", infoset);
        return failures;
    }

    fs::path m_folder;
    TestObject m_object;
    std::size_t m_descriptors;

private:
    static std::string InnermostOf(const std::string& chain)
    {
        const std::size_t link = chain.rfind(" <- ");
        return link == std::string::npos ? chain : chain.substr(link + 4);
    }

    static std::string Both(
        const std::wstring& name, const std::function<void()>& xml, const std::function<void()>& json)
    {
        std::string first = InnermostOf(FailureOf(xml));
        EXPECT_EQ(first, InnermostOf(FailureOf(json)));
        FindReplace(first, Narrow(name).c_str(), "F");
        return first;
    }
};

const std::string notWritten = "Zr: Failed to write data to the file [F].";

/// Whether the action holds in a child that has neither the rights of root nor a way back.
bool HoldsWithoutRoot(const std::function<bool()>& action)
{
    const pid_t child = fork();
    if (child == 0) {
        const bool isPlain = getuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0);
        _exit(isPlain && action() ? 0 : 1);
    }
    int status = 1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

TEST_F(FileFaults, MissingFoldersAndFiles)
{
    EXPECT_EQ("Zr: Failed to open the file [F].", ReadFailures(Name(L"missing.xml")));
    EXPECT_EQ("Zr: Failed to open the file [F].", ReadFailures(Name(L"missing/a.xml")));
    EXPECT_EQ(notWritten + " | " + notWritten, WriteFailures(Name(L"missing/a.xml")));
    EXPECT_EQ("Zr: Failed to open the file [F].", ReadFailures(std::wstring(5000, L'n')));
    EXPECT_EQ(notWritten + " | " + notWritten, WriteFailures(std::wstring(5000, L'n')));
}

TEST_F(FileFaults, FoldersInPlaceOfFiles)
{
    EXPECT_EQ(0U, ReadFailures(m_folder.wstring()).find("Zr: Failed to get the size of the file [F] Error ["));
    EXPECT_EQ(notWritten + " | " + notWritten, WriteFailures(m_folder.wstring()));
}

TEST_F(FileFaults, EmptyFiles)
{
    std::ofstream(m_folder / "empty.xml").close();
    EXPECT_EQ(0U, ReadFailures(Name(L"empty.xml")).find("Zr: Failed to read the contents of the file [F] Error ["));
}

TEST_F(FileFaults, FilesThatEndBeforeTheirSize)
{
    // The system gives such files the size of a page.
    const std::wstring name = L"/sys/kernel/mm/transparent_hugepage/enabled";
    struct stat status { };
    if (stat(Narrow(name).c_str(), &status) != 0 || status.st_size < 1024)
        GTEST_SKIP() << "no file that is shorter than its size";
    EXPECT_EQ(0U, ReadFailures(name).find("Zr: Failed to read the contents of the file [F] Error ["));
}

TEST_F(FileFaults, NoPermission)
{
    const std::wstring readable = Name(L"secret.xml");
    m_object.ToXmlFile(readable.c_str());
    chmod(Narrow(readable).c_str(), 0);
    chmod(m_folder.c_str(), 0555);
    EXPECT_TRUE(HoldsWithoutRoot([&] { return ReadFailures(readable) == "Zr: Failed to open the file [F]."; }));
    for (const std::wstring& name : {readable, Name(L"new.xml")})
        EXPECT_TRUE(HoldsWithoutRoot([&] { return WriteFailures(name) == notWritten + " | " + notWritten; }));
    chmod(m_folder.c_str(), 0755);
}

TEST_F(FileFaults, FullDisks)
{
    const std::string piecewise = WriteFailures(L"/dev/full");
    EXPECT_EQ(notWritten + " | Zr: Failed to write data to the file", piecewise);
    EXPECT_EQ("Zr: Failed to write data to the file [/dev/full].",
        FailureOf([&] { m_object.ToXmlFile(L"/dev/full", true, true, Encoding_UTF8, EOL_LF, {}, Compression_GZip); }));
    // Small documents fit the buffers up to the end.
    m_object.Set(L"x", L"1");
    EXPECT_EQ(piecewise, WriteFailures(L"/dev/full"));
}

TEST_F(FileFaults, FilesThatMayNotGrow)
{
    // A limit of the process behaves like a disk that gets full after a part of the document.
    EXPECT_TRUE(HoldsWithoutRoot([&] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {10000, 10000};
        const std::wstring name = fs::temp_directory_path().wstring() + L"/zrxml_limit_" + std::to_wstring(getpid());
        const bool isSet = setrlimit(RLIMIT_FSIZE, &limit) == 0;
        const std::string failures = WriteFailures(name);
        unlink(Narrow(name).c_str());
        return isSet && failures == notWritten + " | Zr: Failed to write data to the file";
    }));
}
