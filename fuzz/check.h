#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "base/XCode.h"

/// Tries one input, which the caller owns. What is found ends the process.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size);

namespace CLI::XML {

/// Ends the run as a finding, also where assertions are compiled out.
inline void require(bool holds, char const* promise) {
    if (holds) return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

/// A failure is the generic one and has a message.
inline void requireMessage(XCode const& result) {
    require(result || result.getValue() == 0x7FFFFFFF, "a failure is the generic one");
    require(result || result.getString().length() > 0, "a failure has a message");
}

}  // namespace CLI::XML
