// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZRINVALIDPARAMEXCEPTION_H
#define ZRXMLLIB16_ZRINVALIDPARAMEXCEPTION_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ZrException.h"

namespace ZrXmlLib16 {

/// An argument, index or property value that the called operation does not accept.
class ZRXML_API CZrInvalidParamException : public CZrException {
public:
    CZrInvalidParamException();
    /// Takes over message, path and chain of another exception.
    explicit CZrInvalidParamException(const CZrException& base);
    explicit CZrInvalidParamException(const std::wstring& message);
    CZrInvalidParamException(const std::wstring& message, const CZrException& inner);
    CZrInvalidParamException(const CZrInvalidParamException& other);
    ~CZrInvalidParamException() override;
    CZrInvalidParamException& operator=(const CZrInvalidParamException& other);

    CZrInvalidParamException* Clone() const override;
};

} // namespace ZrXmlLib16

#endif
