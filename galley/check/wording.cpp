#include "galley/check/wording.h"

#include <algorithm>
#include <utility>

namespace galley {

void warn(Findings& findings, std::size_t position, std::string message) {
    findings.push_back({Finding::Kind::Warning, std::move(message), position, std::nullopt});
}

void sort(Findings& findings) {
    std::stable_sort(
        findings.begin(), findings.end(),
        [](Finding const& one, Finding const& other) { return one.position < other.position; });
}

}  // namespace galley
