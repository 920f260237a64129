// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Version.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "core/CoreMessages.h"
#include "core/VersionCheck.h"

#include <cstdio>
#include <cwchar>

namespace ZrXmlLib16 {

namespace {

constexpr int LIBRARY_MAJOR = 16;
constexpr int LIBRARY_MINOR = 1;

int g_nMajor = 0;
int g_nMinor = 0;

// A stream that has already been used with narrow characters refuses wide output, and the reverse.
void Print(FILE* stream, const std::wstring& text)
{
    if (std::fwide(stream, 0) > 0) {
        std::fwprintf(stream, L"%ls", text.c_str());
    } else {
        std::fprintf(stream, "%ls", text.c_str());
    }
}

void PrintNotice(FILE* stream)
{
    Print(stream, Message::VERSION_NOTICE_RULE);
    Print(stream, Message::VERSION_NOTICE_TITLE);
    Print(stream, FormatString(Message::VERSION_NOTICE_ADVICE, LIBRARY_MAJOR, LIBRARY_MINOR, g_nMajor, g_nMinor));
}

} // namespace

void Register(int major, int minor, const char*, const char*, const char*)
{
    g_nMajor = major;
    g_nMinor = minor;
}

int GetRegisteredMajor()
{
    return g_nMajor;
}

int GetRegisteredMinor()
{
    return g_nMinor;
}

void CheckVersion()
{
    if (g_nMajor == LIBRARY_MAJOR && g_nMinor == LIBRARY_MINOR) {
        return;
    }
    // kept: required behaviour. The notice goes to both streams, and the exception follows.
    PrintNotice(stdout);
    std::fflush(stdout);
    PrintNotice(stderr);
    throw CZrException(FormatString(Message::WRONG_VERSION, LIBRARY_MAJOR, LIBRARY_MINOR, g_nMajor, g_nMinor));
}

} // namespace ZrXmlLib16
