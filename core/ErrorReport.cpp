// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ErrorReport.h"

#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/Formatting.h"
#include "core/CoreMessages.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <utility>
#include <vector>

namespace ZrXmlLib16 {

namespace {

std::wstring WithoutPath(const CZrException& exception)
{
    const std::wstring& message = exception.GetMessage();
    const std::wstring suffix = Message::PATH_SUFFIX + exception.GetPath();
    const bool hasSuffix = !exception.GetPath().empty() && message.length() >= suffix.length()
        && message.compare(message.length() - suffix.length(), suffix.length(), suffix) == 0;
    return hasSuffix ? message.substr(0, message.length() - suffix.length()) : message;
}

bool LeadsTo(const std::wstring& path, const std::wstring& node)
{
    return node.compare(0, path.length(), path) == 0 && (node.length() == path.length() || node[path.length()] == L'/');
}

class Report {
public:
    explicit Report(const CZrException& outermost)
        : m_line(outermost.GetLine())
        , m_column(outermost.GetColumn())
    {
        for (const CZrException* link = &outermost; link != nullptr; link = link->GetInnerException()) {
            Add(*link);
        }
    }

    std::string Text() const
    {
        std::wstring text;
        for (const std::wstring& message : m_messages) {
            AppendLines(text, message);
        }
        for (const std::wstring& path : m_paths) {
            AppendLines(text, &Message::PATH_SUFFIX[1] + path);
        }
        if (m_line != 0) {
            AppendLines(text, FormatString(Message::AT_POSITION, m_line, m_column));
        }
        return CEncoder::UnicodeToUtf8(text);
    }

private:
    void Add(const CZrException& exception)
    {
        std::wstring message = WithoutPath(exception);
        if (!message.empty() && (m_messages.empty() || m_messages.back() != message)) {
            m_messages.push_back(std::move(message));
        }
        const std::wstring& path = exception.GetPath();
        if (!path.empty()) {
            // Inner paths come later.
            while (!m_paths.empty() && LeadsTo(m_paths.back(), path)) {
                m_paths.pop_back();
            }
            if (m_paths.empty() || !LeadsTo(path, m_paths.back())) {
                m_paths.push_back(path);
            }
        }
    }

    static void AppendLines(std::wstring& text, const std::wstring& lines)
    {
        std::size_t begin = 0;
        while (begin < lines.length()) {
            const std::size_t end = std::min(lines.find(L'\n', begin), lines.length());
            if (end > begin) {
                text += text.empty() ? L"" : L"\n  ";
                text.append(lines, begin, end - begin);
            }
            begin = end + 1;
        }
    }

    std::vector<std::wstring> m_messages;
    std::vector<std::wstring> m_paths;
    const unsigned long m_line;
    const unsigned long m_column;
};

} // namespace

std::string FormatReport(const CZrException& exception)
{
    return Report(exception).Text();
}

void RethrowAsRuntimeError()
{
    try {
        throw;
    } catch (const CZrException& exception) {
        std::throw_with_nested(std::runtime_error(FormatReport(exception)));
    }
}

} // namespace ZrXmlLib16
