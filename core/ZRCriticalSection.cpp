// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ZRCriticalSection.h"

namespace ZrXmlLib16 {

CZRCriticalSection::CZRCriticalSection()
    : m_mutex(PTHREAD_MUTEX_INITIALIZER)
{
}

CZRCriticalSection::~CZRCriticalSection()
{
    pthread_mutex_destroy(&m_mutex);
}

void CZRCriticalSection::Lock()
{
    pthread_mutex_lock(&m_mutex);
}

void CZRCriticalSection::Unlock()
{
    pthread_mutex_unlock(&m_mutex);
}

CZRCriticalSection::CGuard::CGuard(CZRCriticalSection& section)
    : m_section(section)
{
    m_section.Lock();
}

CZRCriticalSection::CGuard::~CGuard()
{
    m_section.Unlock();
}

} // namespace ZrXmlLib16
