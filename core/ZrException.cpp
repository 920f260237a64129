// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZrException.h"

#include "core/CoreMessages.h"

namespace ZrXmlLib16 {

namespace {

std::wstring WithPath(const std::wstring& message, const std::wstring& path)
{
    return path.empty() ? message : message + Message::PATH_SUFFIX + path;
}

} // namespace

CZrException::CZrException()
    : m_inner(nullptr)
    , m_line(0)
    , m_column(0)
{
}

CZrException::CZrException(const std::wstring& message)
    : m_message(message)
    , m_inner(nullptr)
    , m_line(0)
    , m_column(0)
{
}

CZrException::CZrException(const std::wstring& message, const CZrException& inner)
    : m_message(message)
    , m_inner(inner.Clone())
    , m_line(inner.m_line)
    , m_column(inner.m_column)
{
}

CZrException::CZrException(const std::wstring& message, const std::wstring& path)
    : m_message(WithPath(message, path))
    , m_path(path)
    , m_inner(nullptr)
    , m_line(0)
    , m_column(0)
{
}

CZrException::CZrException(const std::wstring& message, const std::wstring& path, const CZrException& inner)
    : m_message(WithPath(message, path))
    , m_path(path)
    , m_inner(inner.Clone())
    , m_line(inner.m_line)
    , m_column(inner.m_column)
{
}

CZrException::CZrException(const CZrException& other)
    : m_message(other.m_message)
    , m_path(other.m_path)
    , m_inner(other.m_inner ? other.m_inner->Clone() : nullptr)
    , m_line(other.m_line)
    , m_column(other.m_column)
{
}

CZrException::~CZrException()
{
    DestroyInner();
}

// A loop, because a chain has one link per level of the document.
void CZrException::DestroyInner() noexcept
{
    CZrException* link = m_inner;
    m_inner = nullptr;
    while (link) {
        CZrException* next = link->m_inner;
        link->m_inner = nullptr;
        delete link;
        link = next;
    }
}

CZrException& CZrException::operator=(const CZrException& other)
{
    if (this != &other) {
        CZrException* inner = other.m_inner ? other.m_inner->Clone() : nullptr;
        m_message = other.m_message;
        m_path = other.m_path;
        m_line = other.m_line;
        m_column = other.m_column;
        DestroyInner();
        m_inner = inner;
    }
    return *this;
}

CZrException* CZrException::Clone() const
{
    return new CZrException(*this);
}

const std::wstring& CZrException::GetMessage() const
{
    return m_message;
}

const std::wstring& CZrException::GetPath() const
{
    return m_path;
}

unsigned long CZrException::GetLine() const
{
    return m_line;
}

unsigned long CZrException::GetColumn() const
{
    return m_column;
}

const CZrException* CZrException::GetInnerException() const
{
    return m_inner;
}

std::wstring CZrException::GetFullMessage() const
{
    std::wstring text = m_message;
    for (const CZrException* link = m_inner; link; link = link->m_inner) {
        text += L'\n';
        text += link->m_message;
    }
    return text;
}

} // namespace ZrXmlLib16
