#include "xml/extremeEdges.h"

#include <algorithm>
#include <string_view>

namespace CLI::XML {

namespace {

constexpr std::size_t s_modestDigits = 4;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Whether `text`, up to a quotation mark, may be an extreme number. It may where it is written
/// with references, which may stand for anything.
bool mayBeExtreme(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    bool const isNegative = !text.empty() && text.front() == '-';
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    auto const* const end = std::find_if_not(text.begin(), text.end(), isDigit);
    bool const hasReference = end != text.end() && *end == '&';
    return isNegative || hasReference ||
           static_cast<std::size_t>(end - text.begin()) > s_modestDigits;
}

}  // namespace

bool mayHaveExtremeEdges(String const& xml, StyleList const& styles) {
    std::string_view const markup = xml.view();
    for (std::size_t quote = markup.find('"'); quote != std::string_view::npos;
         quote = markup.find('"', quote + 1)) {
        bool const beginsValue = quote > 0 && markup[quote - 1] == '=';
        if (beginsValue && mayBeExtreme(markup.substr(quote + 1))) return true;
    }
    for (ZRLWPtr<StyleNode> const& rule : styles) {
        auto const& head = rule->declarations.head;
        for (auto const* entry = head.prev; entry != &head; entry = entry->prev) {
            if (mayBeExtreme(entry->value.view())) return true;
        }
    }
    return false;
}

}  // namespace CLI::XML
