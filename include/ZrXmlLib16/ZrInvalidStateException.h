// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZRINVALIDSTATEEXCEPTION_H
#define ZRXMLLIB16_ZRINVALIDSTATEEXCEPTION_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ZrException.h"

namespace ZrXmlLib16 {

/// An operation that the current state of the object forbids.
class ZRXML_API CZrInvalidStateException : public CZrException {
public:
    CZrInvalidStateException();
    /// Takes over message, path and chain of another exception.
    explicit CZrInvalidStateException(const CZrException& base);
    explicit CZrInvalidStateException(const std::wstring& message);
    CZrInvalidStateException(const std::wstring& message, const CZrException& inner);
    CZrInvalidStateException(const CZrInvalidStateException& other);
    ~CZrInvalidStateException() override;
    CZrInvalidStateException& operator=(const CZrInvalidStateException& other);

    CZrInvalidStateException* Clone() const override;
};

} // namespace ZrXmlLib16

#endif
