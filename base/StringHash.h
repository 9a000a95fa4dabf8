#pragma once

#include <cstdint>
#include <string_view>

#include "String.h"

/// A 32-bit hash over the bytes of a string: for each byte, h becomes h ^ byte ^ (h << 5).
struct StringHash {
    /// Of these bytes; 0 for none.
    ///@{
    constexpr std::uint32_t operator()(std::string_view text) const {
        std::uint32_t hash = 0;
        for (char const c : text) hash ^= static_cast<unsigned char>(c) ^ (hash << 5);
        return hash;
    }
    std::uint32_t operator()(String const& s) const { return (*this)(s.view()); }
    ///@}
};

/// Same length and same bytes.
struct StringCompare {
    /// Whether the two are equal.
    ///@{
    bool operator()(String const& left, String const& right) const { return left == right; }
    bool operator()(String const& left, std::string_view right) const {
        return left.view() == right;
    }
    ///@}
};
