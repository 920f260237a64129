// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZROVERFLOWEXCEPTION_H
#define ZRXMLLIB16_ZROVERFLOWEXCEPTION_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ZrException.h"

namespace ZrXmlLib16 {

/// A value that exceeds the capacity of its target.
class ZRXML_API CZrOverFlowException : public CZrException {
public:
    CZrOverFlowException();
    /// Takes over message, path and chain of another exception.
    explicit CZrOverFlowException(const CZrException& base);
    explicit CZrOverFlowException(const std::wstring& message);
    CZrOverFlowException(const std::wstring& message, const CZrException& inner);
    CZrOverFlowException(const CZrOverFlowException& other);
    ~CZrOverFlowException() override;
    CZrOverFlowException& operator=(const CZrOverFlowException& other);

    CZrOverFlowException* Clone() const override;
};

} // namespace ZrXmlLib16

#endif
