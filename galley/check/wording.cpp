#include "galley/check/wording.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace galley {

namespace {

/// In bytes.
constexpr std::size_t s_longestQuote = 40;

bool isControl(unsigned char c) { return std::iscntrl(c) != 0; }
/// Of a character in UTF-8 that began before.
bool isContinuation(unsigned char c) { return (c & 0xC0) == 0x80; }

}  // namespace

std::string quoted(std::string_view text) {
    std::size_t length = std::min(text.length(), s_longestQuote);
    bool const isCut = length < text.length();
    while (isCut && length > 0 && isContinuation(static_cast<unsigned char>(text[length]))) {
        --length;
    }
    std::string shown(text.substr(0, length));
    std::replace_if(shown.begin(), shown.end(), isControl, '?');
    return "'" + shown + (isCut ? "...'" : "'");
}

std::string didYouMean(std::string_view suggestion, std::string_view otherwise) {
    if (suggestion.empty()) return std::string(otherwise);
    return "; did you mean " + quoted(suggestion) + "?";
}

void warn(Findings& findings, std::size_t position, std::string message) {
    findings.push_back({Finding::Kind::Warning, std::move(message), position, std::nullopt});
}

void sort(Findings& findings) {
    std::stable_sort(
        findings.begin(), findings.end(),
        [](Finding const& one, Finding const& other) { return one.position < other.position; });
}

}  // namespace galley
