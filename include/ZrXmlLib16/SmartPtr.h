// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_SMARTPTR_H
#define ZRXMLLIB16_SMARTPTR_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// Intrusive pointer to a reference-counted object (CXmlObjectBase and its derived classes).
///
/// Calls AddRef on taking an object and Release on dropping it; moving calls neither. A new object counts 0 references,
/// so `CSmartPtr<T> p(new T)` ends with exactly one destruction, and an object on the stack must never be put into a
/// CSmartPtr. One pointer belongs to one thread; the object behind it may be shared.
template <class T> class CSmartPtr {
public:
    /// Null.
    CSmartPtr() noexcept
        : m_object(nullptr)
    {
    }
    /// Takes a reference to the object. @param object may be null.
    CSmartPtr(T* object)
        : m_object(object)
    {
        Acquire();
    }
    CSmartPtr(const CSmartPtr& other)
        : m_object(other.m_object)
    {
        Acquire();
    }
    CSmartPtr(CSmartPtr&& other) noexcept
        : m_object(other.m_object)
    {
        other.m_object = nullptr;
    }
    /// Shares the object of a pointer to a derived class.
    template <class U> CSmartPtr(const CSmartPtr<U>& other)
        : m_object(other.GetPtr())
    {
        Acquire();
    }
    ~CSmartPtr() { Drop(); }

    CSmartPtr& operator=(const CSmartPtr& other) { return *this = other.m_object; }
    CSmartPtr& operator=(CSmartPtr&& other) noexcept
    {
        CSmartPtr taken(static_cast<CSmartPtr&&>(other));
        Swap(taken);
        return *this;
    }
    /// Replaces the object. @param object may be null
    CSmartPtr& operator=(T* object)
    {
        CSmartPtr taken(object);
        Swap(taken);
        return *this;
    }

    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    /// The object, borrowed; null for none.
    operator T*() const { return m_object; }
    /// The object, borrowed; null for none.
    T* GetPtr() const { return m_object; }

    /// Gives up the object without a Release; the caller then owns the reference. Null when there is none.
    T* Detach() noexcept
    {
        T* object = m_object;
        m_object = nullptr;
        return object;
    }
    /// Takes over a reference that the caller owns. @param object may be null.
    static CSmartPtr Attach(T* object) noexcept
    {
        CSmartPtr taken;
        taken.m_object = object;
        return taken;
    }

private:
    void Acquire()
    {
        if (m_object) {
            m_object->AddRef();
        }
    }
    void Swap(CSmartPtr& other) noexcept
    {
        T* object = m_object;
        m_object = other.m_object;
        other.m_object = object;
    }
    void Drop()
    {
        if (m_object) {
            m_object->Release();
        }
    }

    T* m_object;
};

} // namespace ZrXmlLib16

#endif
