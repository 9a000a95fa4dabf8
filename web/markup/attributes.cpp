#include "web/markup/attributes.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <string>

#include "web/wording.h"

namespace galley::web {

namespace {

constexpr std::string_view s_whitespace = " \t\n\f\r";

/// A number that is in no `int` is the limit on its side.
struct Integer {
    int value = 0;
    std::string_view rest;
};

std::optional<Integer> parseInteger(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(s_whitespace), text.size()));
    bool const isNegative = text.starts_with('-');
    if (text.starts_with('+')) text.remove_prefix(1);
    if (isNegative != text.starts_with('-')) return std::nullopt;
    Integer integer;
    char const* const last = text.data() + text.size();
    auto const [end, error] = std::from_chars(text.data(), last, integer.value);
    if (error == std::errc::invalid_argument) return std::nullopt;
    if (error == std::errc::result_out_of_range) integer.value = isNegative ? INT_MIN : INT_MAX;
    integer.rest = {end, last};
    integer.rest.remove_prefix(
        std::min(integer.rest.find_first_not_of(s_whitespace), integer.rest.size()));
    return integer;
}

}  // namespace

std::optional<int> readInteger(Element const& element, std::string_view name, Limits limits,
                               std::vector<Problem>& problems) {
    auto const found = std::ranges::find(element.attributes, name, &Attribute::name);
    if (found == element.attributes.end()) return std::nullopt;
    auto const say = [&](std::string const& what) {
        warn(problems, found->valueOffset, quoted(found->value) + what);
    };
    auto const integer = parseInteger(found->value);
    if (!integer) {
        say(" is no value of " + quoted(name));
        return std::nullopt;
    }
    if (integer->value < limits.least) {
        say(" is less than " + std::to_string(limits.least) + ", the least " + quoted(name));
        return std::nullopt;
    }
    int const value = std::min(integer->value, limits.most);
    if (value < integer->value || !integer->rest.empty()) {
        say(" is read as " + std::to_string(value));
    }
    return value;
}

}  // namespace galley::web
