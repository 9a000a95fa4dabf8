#pragma once

#include <cstdint>

#include "base/String.h"

/// A 32-bit hash over the bytes of a string: for each byte, h becomes h ^ byte ^ (h << 5).
struct StringHash {
    std::uint32_t operator()(String const& s) const {
        std::uint32_t hash = 0;
        char const* const text = s.c_str();
        for (int i = 0; i < s.length(); ++i) {
            hash ^= static_cast<unsigned char>(text[i]) ^ (hash << 5);
        }
        return hash;
    }
};

/// Same length and same bytes.
struct StringCompare {
    bool operator()(String const& left, String const& right) const { return left == right; }
};
