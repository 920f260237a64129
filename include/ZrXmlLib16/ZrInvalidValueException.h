// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZRINVALIDVALUEEXCEPTION_H
#define ZRXMLLIB16_ZRINVALIDVALUEEXCEPTION_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ZrValidationException.h"

namespace ZrXmlLib16 {

/// A text that is not in the lexical space of its type.
class ZRXML_API CZrInvalidValueException : public CZrValidationException {
public:
    CZrInvalidValueException();
    /// Takes over message, path and chain of another exception.
    explicit CZrInvalidValueException(const CZrException& base);
    explicit CZrInvalidValueException(const std::wstring& message);
    CZrInvalidValueException(const std::wstring& message, const CZrException& inner);
    CZrInvalidValueException(const CZrInvalidValueException& other);
    ~CZrInvalidValueException() override;
    CZrInvalidValueException& operator=(const CZrInvalidValueException& other);

    CZrInvalidValueException* Clone() const override;
};

} // namespace ZrXmlLib16

#endif
