#pragma once

namespace ZR {

/// Carries the construction reference of a new object into a `ZRLWPtr` without counting it twice.
/// Owns nothing by itself.
template <class T>
struct MovePtr {
    /// Null where there is no object to hand over.
    T* object;

    /// `newObject` still has the construction reference.
    explicit MovePtr(T* newObject) : object(newObject) {}
};

}  // namespace ZR
