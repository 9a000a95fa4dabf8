#pragma once

#include "XCode.h"
#include "export.h"

/// A lock that a shared object can be guarded by.
class GALLEY_EXPORT ZRLock {
public:
    virtual ~ZRLock() = default;
    /// Success once the lock is held; a failure means that it is not.
    virtual XCode lock() = 0;
    /// Gives back a lock that is held.
    virtual void unlock() = 0;
};
