// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZRCRITICALSECTION_H
#define ZRXMLLIB16_ZRCRITICALSECTION_H

#include "ZrXmlLib16/Export.h"

#include <pthread.h>

namespace ZrXmlLib16 {

/// A plain, non-recursive mutex.
class ZRXML_API CZRCriticalSection {
public:
    /// Free.
    CZRCriticalSection();
    ~CZRCriticalSection();
    CZRCriticalSection(const CZRCriticalSection&) = delete;
    CZRCriticalSection& operator=(const CZRCriticalSection&) = delete;

    /// Waits until the section is free and enters it.
    void Lock();
    /// Leaves the section; only the thread that entered it may do so.
    void Unlock();

    /// Holds a section for the length of a scope.
    class ZRXML_API CGuard {
    public:
        /// Locks the section, which is not owned; the destructor unlocks it.
        explicit CGuard(CZRCriticalSection& section);
        ~CGuard();
        CGuard(const CGuard&) = delete;
        CGuard& operator=(const CGuard&) = delete;

    private:
        CZRCriticalSection& m_section;
    };

private:
    pthread_mutex_t m_mutex;
};

} // namespace ZrXmlLib16

#endif
