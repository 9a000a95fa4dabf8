#pragma once

#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "galley/galley.h"

namespace galley {

/// An error that is about no place in its source.
inline std::vector<Diagnostic> failure(std::string_view source, std::string_view message) {
    return {Diagnostic(Severity::error, std::string(message), std::string(source))};
}

/// What `work` returns, a `Result`; where memory ends, the error that says so.
template <class Work>
auto guarded(std::string_view source, Work const& work) -> decltype(work()) {
    try {
        return work();
    } catch (std::bad_alloc const&) {
        return decltype(work())(failure(source, "Out of memory"));
    }
}

}  // namespace galley
