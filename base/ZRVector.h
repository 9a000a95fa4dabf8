#pragma once

#include <limits>
#include <new>
#include <utility>

/// A growable array whose capacity grows to the next multiple of `growBy`.
///
/// 1. The elements are the first `count` slots of `data`; `count` <= `capacity`.
/// 2. Slots past `count` hold T's default value (or are unset where T has no constructor).
/// 3. The storage holds at least `capacity` slots; it is doubled when it is outgrown, so that
///    appending costs constant time, while `capacity` follows the growth step.
///
/// Where storage cannot be had the allocator's exception passes and the vector is unchanged.
template <class T>
class ZRVector {
public:
    T* data = nullptr;
    unsigned count = 0;
    unsigned capacity = 0;
    unsigned growBy = 2;

    ZRVector() = default;
    ZRVector(ZRVector const& other) { *this = other; }
    ZRVector(ZRVector&& other) noexcept { exchange(other); }
    ~ZRVector() { delete[] data; }

    /// Copies the elements; keeps this vector's growth step, and its storage where it suffices.
    ZRVector& operator=(ZRVector const& other) {
        if (this == &other) return *this;
        if (other.count > capacity && !enlarge(other.count)) return *this;
        for (unsigned i = 0; i < other.count; ++i) data[i] = other.data[i];
        for (unsigned i = other.count; i < count; ++i) data[i] = T();
        count = other.count;
        return *this;
    }
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

    T const* begin() const { return data; }
    T const* end() const { return data + count; }

    /// Makes `capacity` the smallest multiple of `growBy` greater than `n`, unless it is greater
    /// than `n` already. True on success.
    bool enlarge(unsigned n) {
        if (n < capacity) return true;
        unsigned long long const slots = (n / growBy + 1ULL) * growBy;
        if (slots > std::numeric_limits<unsigned>::max()) throw std::bad_array_new_length();
        if (slots > allocated) reallocate(static_cast<unsigned>(slots));
        capacity = static_cast<unsigned>(slots);
        return true;
    }

    void add(T const& v) { insert(count, v); }
    void add(T&& v) { insert(count, std::move(v)); }

    /// Puts `v` before element `i`; at or past the end it becomes element `i`, and slots in
    /// between become elements as they are. `v` may be an element of this vector.
    void insert(unsigned i, T const& v) { insert(i, T(v)); }
    void insert(unsigned i, T&& v) {
        T taken = std::move(v);
        unsigned const formerCount = count;
        // Brings the slot behind the last element into use, or slot `i` where that is further out.
        (*this)[i < count ? count : i];
        for (unsigned slot = formerCount; slot > i; --slot) data[slot] = std::move(data[slot - 1]);
        data[i] = std::move(taken);
    }

    /// Removes element `i`, keeping the order of the others; past the end nothing happens.
    void removeAt(unsigned i) {
        if (i >= count) return;
        for (unsigned slot = i + 1; slot < count; ++slot) data[slot - 1] = std::move(data[slot]);
        data[--count] = T();
    }

    /// Moves the elements from `i` on to the end of `target`.
    void moveTailTo(unsigned i, ZRVector& target) {
        for (unsigned slot = i; slot < count; ++slot) {
            target.add(std::move(data[slot]));
            data[slot] = T();
        }
        if (i < count) count = i;
    }

    /// Removes every element; the storage stays.
    void clear() {
        for (unsigned i = 0; i < count; ++i) data[i] = T();
        count = 0;
    }

private:
    /// Makes slot `i` exist.
    void growToHold(unsigned i) {
        if (i == std::numeric_limits<unsigned>::max()) throw std::bad_array_new_length();
        if (i >= capacity) enlarge(i + 1);
    }

    void reallocate(unsigned slots) {
        unsigned const doubled =
            allocated > std::numeric_limits<unsigned>::max() / 2 ? slots : allocated * 2;
        unsigned const wanted = slots > doubled ? slots : doubled;
        T* const larger = new T[wanted];
        for (unsigned i = 0; i < count; ++i) larger[i] = std::move(data[i]);
        delete[] data;
        data = larger;
        allocated = wanted;
    }

    void exchange(ZRVector& other) noexcept {
        std::swap(data, other.data);
        std::swap(count, other.count);
        std::swap(capacity, other.capacity);
        std::swap(allocated, other.allocated);
    }

    unsigned allocated = 0;
};
