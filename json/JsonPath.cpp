// SPDX-License-Identifier: MIT
#include "json/JsonPath.h"

#include <algorithm>

namespace ZrXmlLib16 {

namespace {

bool IsNameStart(wchar_t c)
{
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') || c == L'_';
}

bool IsNamePart(wchar_t c)
{
    return IsNameStart(c) || (c >= L'0' && c <= L'9') || c == L'-';
}

/// Whether a name stands in a path without quotes.
bool IsPlainName(const std::wstring& name)
{
    const std::size_t start = !name.empty() && (name[0] == L'@' || name[0] == L'#') ? 1 : 0;
    return start < name.size() && IsNameStart(name[start])
        && std::all_of(name.begin() + static_cast<std::ptrdiff_t>(start), name.end(), IsNamePart);
}

} // namespace

void AppendMemberToPath(std::wstring& path, const std::wstring& name)
{
    if (IsPlainName(name)) {
        path.append(1, L'.').append(name);
        return;
    }
    path += L"['";
    for (const wchar_t c : name) {
        if (c == L'\'' || c == L'\\') {
            path.push_back(L'\\');
        }
        path.push_back(c);
    }
    path += L"']";
}

void AppendItemToPath(std::wstring& path, std::size_t index)
{
    path.append(1, L'[').append(std::to_wstring(index)).append(1, L']');
}

} // namespace ZrXmlLib16
