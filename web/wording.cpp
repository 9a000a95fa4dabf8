#include "web/wording.h"

#include <algorithm>
#include <utility>

#include "web/text/visible.h"

namespace galley::web {

namespace {

/// In bytes.
constexpr std::size_t s_longest = 40;

bool continuesCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80; }

}  // namespace

std::string shortened(std::string_view text) {
    std::size_t length = std::min(text.length(), s_longest);
    bool const isCut = length < text.length();
    while (isCut && length > 0 && continuesCharacter(text[length])) --length;
    std::string shown = visible(text.substr(0, length));
    return isCut ? shown.append("...") : shown;
}

std::string quoted(std::string_view text) {
    std::string quote = "'";
    return quote.append(shortened(text)).append("'");
}

std::string didYouMean(std::string_view suggestion, std::string_view otherwise) {
    if (suggestion.empty()) return std::string(otherwise);
    return std::string("; did you mean ").append(quoted(suggestion)).append("?");
}

void tell(std::vector<Problem>& problems, Problem problem) {
    if (problems.size() > s_mostWarnings) return;
    if (problems.size() == s_mostWarnings) problem.message = "there are more warnings than these";
    problems.push_back(std::move(problem));
}

void warn(std::vector<Problem>& problems, std::size_t offset, std::string message) {
    tell(problems, {Problem::Kind::warning, offset, std::move(message)});
}

bool fail(std::vector<Problem>& problems, std::size_t offset, std::string message) {
    problems.push_back({Problem::Kind::error, offset, std::move(message)});
    return false;
}

}  // namespace galley::web
