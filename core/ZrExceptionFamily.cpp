// SPDX-License-Identifier: MIT
// The subclasses of CZrException: each adds only its type.
#include "ZrXmlLib16/ZrInvalidNamespaceException.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "ZrXmlLib16/ZrOverFlowException.h"
#include "ZrXmlLib16/ZrValidationException.h"

namespace ZrXmlLib16 {

CZrValidationException::CZrValidationException() = default;

CZrValidationException::CZrValidationException(const CZrException& base)
    : CZrException(base)
{
}

CZrValidationException::CZrValidationException(const std::wstring& message, const std::wstring& path)
    : CZrException(message, path)
{
}

CZrValidationException::CZrValidationException(
    const std::wstring& message, const std::wstring& path, const CZrException& inner)
    : CZrException(message, path, inner)
{
}

CZrValidationException::CZrValidationException(const CZrValidationException& other) = default;

CZrValidationException::~CZrValidationException() = default;

CZrValidationException& CZrValidationException::operator=(const CZrValidationException& other) = default;

CZrValidationException* CZrValidationException::Clone() const
{
    return new CZrValidationException(*this);
}

CZrInvalidNamespaceException::CZrInvalidNamespaceException() = default;

CZrInvalidNamespaceException::CZrInvalidNamespaceException(const CZrException& base)
    : CZrValidationException(base)
{
}

CZrInvalidNamespaceException::CZrInvalidNamespaceException(const std::wstring& message, const std::wstring& path)
    : CZrValidationException(message, path)
{
}

CZrInvalidNamespaceException::CZrInvalidNamespaceException(
    const std::wstring& message, const std::wstring& path, const CZrException& inner)
    : CZrValidationException(message, path, inner)
{
}

CZrInvalidNamespaceException::CZrInvalidNamespaceException(const CZrInvalidNamespaceException& other) = default;

CZrInvalidNamespaceException::~CZrInvalidNamespaceException() = default;

CZrInvalidNamespaceException& CZrInvalidNamespaceException::operator=(
    const CZrInvalidNamespaceException& other) = default;

CZrInvalidNamespaceException* CZrInvalidNamespaceException::Clone() const
{
    return new CZrInvalidNamespaceException(*this);
}

CZrInvalidValueException::CZrInvalidValueException() = default;

CZrInvalidValueException::CZrInvalidValueException(const CZrException& base)
    : CZrValidationException(base)
{
}

CZrInvalidValueException::CZrInvalidValueException(const std::wstring& message)
    : CZrValidationException(message, std::wstring())
{
}

CZrInvalidValueException::CZrInvalidValueException(const std::wstring& message, const CZrException& inner)
    : CZrValidationException(message, std::wstring(), inner)
{
}

CZrInvalidValueException::CZrInvalidValueException(const CZrInvalidValueException& other) = default;

CZrInvalidValueException::~CZrInvalidValueException() = default;

CZrInvalidValueException& CZrInvalidValueException::operator=(const CZrInvalidValueException& other) = default;

CZrInvalidValueException* CZrInvalidValueException::Clone() const
{
    return new CZrInvalidValueException(*this);
}

CZrInvalidParamException::CZrInvalidParamException() = default;

CZrInvalidParamException::CZrInvalidParamException(const CZrException& base)
    : CZrException(base)
{
}

CZrInvalidParamException::CZrInvalidParamException(const std::wstring& message)
    : CZrException(message)
{
}

CZrInvalidParamException::CZrInvalidParamException(const std::wstring& message, const CZrException& inner)
    : CZrException(message, inner)
{
}

CZrInvalidParamException::CZrInvalidParamException(const CZrInvalidParamException& other) = default;

CZrInvalidParamException::~CZrInvalidParamException() = default;

CZrInvalidParamException& CZrInvalidParamException::operator=(const CZrInvalidParamException& other) = default;

CZrInvalidParamException* CZrInvalidParamException::Clone() const
{
    return new CZrInvalidParamException(*this);
}

CZrInvalidStateException::CZrInvalidStateException() = default;

CZrInvalidStateException::CZrInvalidStateException(const CZrException& base)
    : CZrException(base)
{
}

CZrInvalidStateException::CZrInvalidStateException(const std::wstring& message)
    : CZrException(message)
{
}

CZrInvalidStateException::CZrInvalidStateException(const std::wstring& message, const CZrException& inner)
    : CZrException(message, inner)
{
}

CZrInvalidStateException::CZrInvalidStateException(const CZrInvalidStateException& other) = default;

CZrInvalidStateException::~CZrInvalidStateException() = default;

CZrInvalidStateException& CZrInvalidStateException::operator=(const CZrInvalidStateException& other) = default;

CZrInvalidStateException* CZrInvalidStateException::Clone() const
{
    return new CZrInvalidStateException(*this);
}

CZrOverFlowException::CZrOverFlowException() = default;

CZrOverFlowException::CZrOverFlowException(const CZrException& base)
    : CZrException(base)
{
}

CZrOverFlowException::CZrOverFlowException(const std::wstring& message)
    : CZrException(message)
{
}

CZrOverFlowException::CZrOverFlowException(const std::wstring& message, const CZrException& inner)
    : CZrException(message, inner)
{
}

CZrOverFlowException::CZrOverFlowException(const CZrOverFlowException& other) = default;

CZrOverFlowException::~CZrOverFlowException() = default;

CZrOverFlowException& CZrOverFlowException::operator=(const CZrOverFlowException& other) = default;

CZrOverFlowException* CZrOverFlowException::Clone() const
{
    return new CZrOverFlowException(*this);
}

} // namespace ZrXmlLib16
