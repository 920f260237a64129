// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZRINVALIDNAMESPACEEXCEPTION_H
#define ZRXMLLIB16_ZRINVALIDNAMESPACEEXCEPTION_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ZrValidationException.h"

namespace ZrXmlLib16 {

/// A namespace that a wildcard does not allow.
class ZRXML_API CZrInvalidNamespaceException : public CZrValidationException {
public:
    CZrInvalidNamespaceException();
    /// Takes over message, path and chain of another exception.
    explicit CZrInvalidNamespaceException(const CZrException& base);
    CZrInvalidNamespaceException(const std::wstring& message, const std::wstring& path);
    CZrInvalidNamespaceException(const std::wstring& message, const std::wstring& path, const CZrException& inner);
    CZrInvalidNamespaceException(const CZrInvalidNamespaceException& other);
    ~CZrInvalidNamespaceException() override;
    CZrInvalidNamespaceException& operator=(const CZrInvalidNamespaceException& other);

    CZrInvalidNamespaceException* Clone() const override;
};

} // namespace ZrXmlLib16

#endif
