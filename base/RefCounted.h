#pragma once

#include "export.h"

class ZRLock;

namespace ZR {

/// The intrusively counted base of every shared object. A new object has one reference, its
/// construction reference, which exactly one holder adopts; it destroys itself when the last
/// reference is released.
class GALLEY_EXPORT RefCounted {
public:
    /// Guards the releases that ask for it; not owned, may be null.
    ZRLock* lock;
    /// References held.
    int refCount = 1;

    /// An object with its construction reference; `guard` outlives it and may be null.
    explicit RefCounted(ZRLock* guard) : lock(guard) {}
    RefCounted(RefCounted const&) = delete;
    RefCounted& operator=(RefCounted const&) = delete;

    /// One reference more.
    virtual void addRef() { ++refCount; }
    /// One reference less; the object is destroyed with its last one.
    virtual void release() {
        if (tryRelease()) callDtor();
    }
    /// A release under the object's lock, if it has one.
    virtual void protectedRelease();
    /// What guards releases now; null for nothing.
    virtual ZRLock* getLock() { return lock; }
    virtual ~RefCounted() = default;
    /// Destroys and frees the object.
    virtual void callDtor() { delete this; }
    /// One reference less; true when that was the last one. Destroys nothing.
    virtual bool tryRelease() { return --refCount == 0; }
    /// A release under the object's lock, which is given back after the destruction; where the
    /// lock cannot be had the release happens without it.
    virtual void securedProtectedRelease();
};

}  // namespace ZR
