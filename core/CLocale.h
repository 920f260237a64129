// SPDX-License-Identifier: MIT
#ifndef CORE_CLOCALE_H
#define CORE_CLOCALE_H

#include <locale.h>

namespace ZrXmlLib16 {

/// The "C" locale as an object of its own, for the functions that take one. Immutable, shared by all threads.
locale_t CLocale();

/// Makes the "C" locale the calling thread's locale for the guard's lifetime.
class CLocaleGuard {
public:
    CLocaleGuard()
        : m_previous(uselocale(CLocale()))
    {
    }
    ~CLocaleGuard() { uselocale(m_previous); }
    CLocaleGuard(const CLocaleGuard&) = delete;
    CLocaleGuard& operator=(const CLocaleGuard&) = delete;

private:
    locale_t m_previous;
};

} // namespace ZrXmlLib16

#endif
