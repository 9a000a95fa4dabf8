#pragma once

namespace ZR {

/// Carries the construction reference of a new object into a `ZRLWPtr` without counting it twice.
/// Owns nothing by itself.
template <class T>
struct MovePtr {
    T* object;

    explicit MovePtr(T* newObject) : object(newObject) {}
};

}  // namespace ZR
