// SPDX-License-Identifier: MIT
#include "core/DepthGuard.h"

#include "ZrXmlLib16/SerializationContext.h"

namespace ZrXmlLib16 {

namespace {

// Every element of a walk counts: the usual access to the variables of a shared library is a call.
[[gnu::tls_model("initial-exec")]] thread_local int t_depth = 0;

} // namespace

CDepthGuard::CDepthGuard()
{
    ++t_depth;
}

CDepthGuard::~CDepthGuard()
{
    --t_depth;
}

bool CDepthGuard::IsTooDeep(const CSerializationContext& context) const
{
    return t_depth > context.GetMaxDepth();
}

} // namespace ZrXmlLib16
