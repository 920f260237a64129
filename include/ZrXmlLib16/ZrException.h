// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZREXCEPTION_H
#define ZRXMLLIB16_ZREXCEPTION_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// Base of every exception of the library: a message, the path of the node at fault, its place in the text that was
/// read, and the exception that caused it.
///
/// An exception owns a copy of its cause, so a failure deep in an object tree arrives as a chain, outermost first.
/// Exceptions are values: copies are deep, and a copy of the chain keeps the dynamic type of every cause. Not
/// synchronised.
class ZRXML_API CZrException {
public:
    /// No message, path and cause.
    CZrException();
    /// A message without path and cause.
    explicit CZrException(const std::wstring& message);
    /// A message and its cause, of which a clone is kept.
    CZrException(const std::wstring& message, const CZrException& inner);
    /// A message and the XPath of the node at fault: when it is not empty, "\nPath: " and the path are appended to the
    /// message. A clone of the cause is kept.
    CZrException(const std::wstring& message, const std::wstring& path);
    CZrException(const std::wstring& message, const std::wstring& path, const CZrException& inner);
    CZrException(const CZrException& other);
    virtual ~CZrException();

    /// @return a new copy of the same dynamic class, which the caller owns.
    virtual CZrException* Clone() const;

    /// The message, with the path suffix when there is a path.
    const std::wstring& GetMessage() const;
    /// XPath of the node at fault, empty when it is not known.
    const std::wstring& GetPath() const;
    /// @{
    /// Where the start tag of the element at fault begins in the XML text that was read, or where the text stops being
    /// well-formed: see CXmlElement::GetLine. Both 0 when it is not known. An exception takes over the place of its
    /// cause.
    unsigned long GetLine() const;
    unsigned long GetColumn() const;
    /// @}
    /// The cause, or null; owned by this exception.
    const CZrException* GetInnerException() const;
    /// The messages of the whole chain, outermost first, separated by single line feeds.
    std::wstring GetFullMessage() const;

    CZrException& operator=(const CZrException& other);

private:
    friend class ErrorPosition;

    void DestroyInner() noexcept;

    std::wstring m_message;
    std::wstring m_path;
    CZrException* m_inner;
    unsigned long m_line;
    unsigned long m_column;
};

} // namespace ZrXmlLib16

#endif
