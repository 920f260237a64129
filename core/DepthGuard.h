// SPDX-License-Identifier: MIT
#ifndef CORE_DEPTHGUARD_H
#define CORE_DEPTHGUARD_H

namespace ZrXmlLib16 {

class CSerializationContext;

/// Counts the elements that the walks of this thread are inside of, for the length of a scope. It measures the machine
/// stack, so walks that are started from within a walk add to the same count. It also ends a walk over an object graph
/// with a cycle.
class CDepthGuard {
public:
    CDepthGuard();
    ~CDepthGuard();
    CDepthGuard(const CDepthGuard&) = delete;
    CDepthGuard& operator=(const CDepthGuard&) = delete;

    /// Whether this scope is one level too many for the context.
    bool IsTooDeep(const CSerializationContext& context) const;
};

} // namespace ZrXmlLib16

#endif
