#pragma once

#include <memory>

/// A reference to an object of the main thread that may be gone meanwhile. It may be carried
/// through other threads, and be looked at on the main thread.
template <class T> class HRFWeakReference
{
public:
    explicit HRFWeakReference(const std::shared_ptr<T *> &object) : m_object(object) { }

    /// nullptr when the object is gone.
    T *get() const
    {
        const auto object = m_object.lock();
        return object ? *object : nullptr;
    }

private:
    std::weak_ptr<T *> m_object;
};

/// A member of an object that hands out weak references to it.
template <class T> class HRFWeakSelf
{
public:
    explicit HRFWeakSelf(T *self) : m_self(std::make_shared<T *>(self)) { }
    HRFWeakSelf(const HRFWeakSelf &) = delete;
    HRFWeakSelf &operator=(const HRFWeakSelf &) = delete;

    HRFWeakReference<T> reference() const { return HRFWeakReference<T>(m_self); }

private:
    const std::shared_ptr<T *> m_self;
};
