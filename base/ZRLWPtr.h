#pragma once

#include <cstddef>
#include <utility>

#include "MovePtr.h"

/// A counting pointer to a `ZR::RefCounted` object: a non-null `object` owns exactly one
/// reference.
template <class T>
class ZRLWPtr {
public:
    /// What is pointed to; null for nothing.
    T* object = nullptr;

    ZRLWPtr() = default;
    /// Points to nothing.
    ZRLWPtr(std::nullptr_t) {}  // NOLINT(google-explicit-constructor): the null pointer
    /// Shares the object with a reference of its own.
    ZRLWPtr(ZRLWPtr const& other) : object(other.object) { addRefIfAny(); }
    /// Takes the reference over; `other` points to nothing.
    ZRLWPtr(ZRLWPtr&& other) noexcept : object(std::exchange(other.object, nullptr)) {}
    /// Shares the object of a pointer to a derived class.
    template <class Derived>
    ZRLWPtr(ZRLWPtr<Derived> const& other)  // NOLINT(google-explicit-constructor): an upcast
        : object(other.object) {
        addRefIfAny();
    }
    /// Takes over the reference of a pointer to a derived class.
    template <class Derived>
    ZRLWPtr(ZRLWPtr<Derived>&& other) noexcept  // NOLINT(google-explicit-constructor): an upcast
        : object(std::exchange(other.object, nullptr)) {}
    /// Adopts the construction reference.
    ZRLWPtr(ZR::MovePtr<T> const& other)  // NOLINT(google-explicit-constructor): a handover
        : object(other.object) {}
    /// A pointer that shares `p` with a reference of its own.
    static ZRLWPtr share(T* p) {
        ZRLWPtr pointer;
        pointer.setObj(p);
        return pointer;
    }
    ~ZRLWPtr() {
        if (object != nullptr) object->release();
    }

    /// Shares the object of `other`, then releases the former one.
    ZRLWPtr& operator=(ZRLWPtr const& other) {
        if (this != &other) setObj(other.object);
        return *this;
    }
    /// Takes the reference of `other` over, then releases the former one.
    ZRLWPtr& operator=(ZRLWPtr&& other) noexcept {
        if (this != &other) replace(std::exchange(other.object, nullptr));
        return *this;
    }
    /// Adopts the construction reference, then releases the former object.
    ZRLWPtr& operator=(ZR::MovePtr<T> const& other) {
        setObjDontAddRef(other.object);
        return *this;
    }

    /// Holds `p` with a reference of its own; nothing happens when `p` is held already.
    void setObj(T* p) {
        if (p == object) return;
        if (p != nullptr) p->addRef();
        replace(p);
    }
    /// Adopts the caller's reference of `p`: none is added. Nothing happens when `p` is held
    /// already.
    void setObjDontAddRef(T* p) {
        if (p != object) replace(p);
    }

    /// The object, which must be there.
    ///@{
    T& operator*() const { return *object; }
    T* operator->() const { return object; }
    ///@}
    /// Whether there is an object.
    explicit operator bool() const { return object != nullptr; }

private:
    void addRefIfAny() {
        if (object != nullptr) object->addRef();
    }
    /// Stores first and releases last: the release may run code that looks at this pointer.
    void replace(T* p) {
        T* const former = std::exchange(object, p);
        if (former != nullptr) former->release();
    }
};
