#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <utility>

#include "hugePages.h"

/// A growable array whose capacity grows to the next multiple of `growBy`.
///
/// 1. The elements are the first `count` slots of `data`; `count` <= `capacity`.
/// 2. Slots past `count` hold T's default value (or are unset where T has no constructor).
/// 3. The storage holds at least `capacity` slots; when it is outgrown it is doubled, or if it is
///    long grows by a half, so that appending costs constant time, while `capacity` follows the
///    growth step.
///
/// Where storage cannot be had the allocator's exception passes and the vector is unchanged.
template <class T>
class ZRVector {
public:
    T* data = nullptr;      ///< Slot 0; null without storage.
    unsigned count = 0;     ///< Elements.
    unsigned capacity = 0;  ///< Slots that may be used without growing.
    unsigned growBy = 2;    ///< Of the capacity; above 0.

    ZRVector() = default;
    /// Copies the elements, not the growth step.
    ZRVector(ZRVector const& other) { *this = other; }
    /// Takes elements and storage over; `other` is left empty.
    ZRVector(ZRVector&& other) noexcept { exchange(other); }
    ~ZRVector() { freeStorage(); }

    /// Copies the elements; keeps this vector's growth step, and its storage where it suffices.
    ZRVector& operator=(ZRVector const& other) {
        if (this == &other) return *this;
        if (other.count > capacity && !enlarge(other.count)) return *this;
        for (unsigned i = 0; i < other.count; ++i) data[i] = other.data[i];
        for (unsigned i = other.count; i < count; ++i) data[i] = T();
        count = other.count;
        return *this;
    }
    /// Exchanges elements and storage, not the growth steps.
    ZRVector& operator=(ZRVector&& other) noexcept {
        exchange(other);
        return *this;
    }

    /// Slot `i`, which becomes an element together with those before it when it is not one yet.
    T& operator[](unsigned i) {
        if (i >= count) {
            growToHold(i);
            count = i + 1;
        }
        return data[i];
    }
    /// Element `i`, unchecked.
    T const& operator[](unsigned i) const { return data[i]; }

    /// The first element, and what is behind the last one.
    ///@{
    T const* begin() const { return data; }
    T const* end() const { return data + count; }
    ///@}

    /// Makes `capacity` the smallest multiple of `growBy` greater than `n`, unless it is greater
    /// than `n` already. True on success.
    bool enlarge(unsigned n) {
        if (n < capacity) return true;
        unsigned const slots = slotsAbove(n);
        provide(slots);
        capacity = slots;
        return true;
    }

    /// Puts `v` behind the last element. It may be an element of this vector.
    ///@{
    void add(T const& v) { add(T(v)); }
    void add(T&& v) {
        T taken = std::move(v);
        growToHold(count);
        data[count++] = std::move(taken);
    }
    ///@}

    /// Puts `v` before element `i`; at or past the end it becomes element `i`, and slots in
    /// between become elements as they are. `v` may be an element of this vector.
    ///@{
    void insert(unsigned i, T const& v) { insert(i, T(v)); }
    void insert(unsigned i, T&& v) {
        T taken = std::move(v);
        unsigned const formerCount = count;
        // Brings the slot behind the last element into use, or slot `i` where that is further out.
        (*this)[i < count ? count : i];
        for (unsigned slot = formerCount; slot > i; --slot) data[slot] = std::move(data[slot - 1]);
        data[i] = std::move(taken);
    }
    ///@}

    /// Removes element `i`, keeping the order of the others; past the end nothing happens.
    void removeAt(unsigned i) {
        if (i >= count) return;
        for (unsigned slot = i + 1; slot < count; ++slot) data[slot - 1] = std::move(data[slot]);
        data[--count] = T();
    }

    /// Moves the elements from `i` on to the end of `target`, another vector.
    void moveTailTo(unsigned i, ZRVector& target) {
        if (i >= count) return;
        target.enlarge(target.count + (count - i) - 1);
        for (unsigned slot = i; slot < count; ++slot) {
            target.data[target.count++] = std::move(data[slot]);
            data[slot] = T();
        }
        count = i;
    }

    /// Removes every element; the storage stays.
    void clear() {
        for (unsigned i = 0; i < count; ++i) data[i] = T();
        count = 0;
    }

private:
    using Allocator = std::allocator<T>;
    struct Deallocator {
        unsigned slots;
        void operator()(T* storage) const { Allocator().deallocate(storage, slots); }
    };

    /// The smallest multiple of `growBy` greater than `n`.
    unsigned slotsAbove(unsigned long long n) const {
        unsigned long long const slots = (n / growBy + 1) * growBy;
        if (slots >= std::numeric_limits<unsigned>::max()) throw std::bad_array_new_length();
        return static_cast<unsigned>(slots);
    }

    /// Makes slot `i` exist.
    void growToHold(unsigned i) {
        if (i >= capacity) outgrow(i);
    }

    [[gnu::noinline]] void outgrow(unsigned i) {
        if (i == std::numeric_limits<unsigned>::max()) throw std::bad_array_new_length();
        enlarge(i + 1);
    }

    /// Sees to it that the storage holds `slots` slots.
    void provide(unsigned slots) {
        if (slots <= allocated) return;
        unsigned const part = allocated < s_long ? allocated : allocated / 2;
        unsigned const spare = std::min(part, std::numeric_limits<unsigned>::max() - allocated);
        moveTo(std::max(slots, allocated + spare));
    }

    /// Moves the elements into new storage.
    void moveTo(unsigned slots) {
        std::unique_ptr<T, Deallocator> fresh(Allocator().allocate(slots), {slots});
        preferHugePages(fresh.get(), slots * sizeof(T));
        std::uninitialized_default_construct_n(fresh.get(), slots);
        std::move(data, data + count, fresh.get());
        freeStorage();
        data = fresh.release();
        allocated = slots;
    }

    void freeStorage() {
        if (data == nullptr) return;
        std::destroy_n(data, allocated);
        Allocator().deallocate(data, allocated);
    }

    void exchange(ZRVector& other) noexcept {
        std::swap(data, other.data);
        std::swap(count, other.count);
        std::swap(capacity, other.capacity);
        std::swap(allocated, other.allocated);
    }

    /// Slots from which on twice as many would be too many to spare.
    static constexpr unsigned s_long = 256;
    /// Slots of the storage.
    unsigned allocated = 0;
};
