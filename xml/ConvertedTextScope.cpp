// SPDX-License-Identifier: MIT
#include "xml/ConvertedTextScope.h"

namespace ZrXmlLib16 {

namespace {

thread_local int t_scopes = 0;

} // namespace

ConvertedTextScope::ConvertedTextScope() noexcept
{
    ++t_scopes;
}

ConvertedTextScope::~ConvertedTextScope()
{
    --t_scopes;
}

bool ConvertedTextScope::IsActive() noexcept
{
    return t_scopes > 0;
}

} // namespace ZrXmlLib16
