// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZRVALIDATIONEXCEPTION_H
#define ZRXMLLIB16_ZRVALIDATIONEXCEPTION_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ZrException.h"

namespace ZrXmlLib16 {

/// A document or object breaks the rules of its schema.
class ZRXML_API CZrValidationException : public CZrException {
public:
    CZrValidationException();
    /// Takes over message, path and chain of another exception.
    explicit CZrValidationException(const CZrException& base);
    CZrValidationException(const std::wstring& message, const std::wstring& path);
    CZrValidationException(const std::wstring& message, const std::wstring& path, const CZrException& inner);
    CZrValidationException(const CZrValidationException& other);
    ~CZrValidationException() override;
    CZrValidationException& operator=(const CZrValidationException& other);

    CZrValidationException* Clone() const override;

private:
    std::wstring m_detail;
};

} // namespace ZrXmlLib16

#endif
