#include "base/RefCounted.h"

#include "base/ZRLock.h"

namespace ZR {

void RefCounted::protectedRelease() { securedProtectedRelease(); }

void RefCounted::securedProtectedRelease() {
    ZRLock* const guard = getLock();
    bool const locked = guard != nullptr && guard->lock();
    if (tryRelease()) callDtor();
    if (locked) guard->unlock();
}

}  // namespace ZR
