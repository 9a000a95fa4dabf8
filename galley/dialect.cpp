#include "galley/dialect.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

#include "galley/Places.h"

namespace galley {

namespace {

constexpr std::string_view s_whiteSpace = " \t\r\n";

struct Name {
    std::string_view word;
    Dialect dialect;
};

constexpr Name s_names[] = {{"core", Dialect::core}, {"web", Dialect::web}};

/// Steps behind the next `end`; false where there is none.
bool skipThrough(std::string_view& text, std::string_view end) {
    std::size_t const found = text.find(end);
    if (found == std::string_view::npos) return false;
    text.remove_prefix(found + end.length());
    return true;
}

void skipBlanks(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(s_whiteSpace), text.length()));
}

bool take(std::string_view& text, std::string_view expected) {
    if (!text.starts_with(expected)) return false;
    text.remove_prefix(expected.length());
    return true;
}

/// What is between "<?galley" and "?>" at the beginning of a document, where nothing comes before
/// but its XML declaration and comments.
std::optional<std::string_view> findInstruction(std::string_view text) {
    take(text, "\xEF\xBB\xBF");
    for (skipBlanks(text); !take(text, "<?galley"); skipBlanks(text)) {
        bool const isSkipped = (text.starts_with("<?xml") && skipThrough(text, "?>")) ||
                               (text.starts_with("<!--") && skipThrough(text, "-->"));
        if (!isSkipped) return std::nullopt;
    }
    std::size_t const end = text.find("?>");
    if (end == std::string_view::npos) return std::nullopt;
    return text.substr(0, end);
}

/// Of dialect="NAME", in either kind of quotes.
std::string_view valueIn(std::string_view instruction) {
    skipBlanks(instruction);
    if (!take(instruction, "dialect")) return {};
    skipBlanks(instruction);
    if (!take(instruction, "=")) return {};
    skipBlanks(instruction);
    std::string_view const quote = instruction.substr(0, 1);
    if (quote != "\"" && quote != "'") return {};
    instruction.remove_prefix(1);
    std::string_view const value = instruction.substr(0, instruction.find(quote));
    if (!skipThrough(instruction, quote)) return {};
    skipBlanks(instruction);
    return instruction.empty() ? value : std::string_view();
}

}  // namespace

Result<Dialect> dialectOf(std::string_view markup, Options const& options) {
    if (options.dialect) return *options.dialect;
    auto const instruction = findInstruction(markup);
    if (!instruction) return s_defaultDialect;
    std::string_view const value = valueIn(*instruction);
    auto const* const name = std::find_if(std::begin(s_names), std::end(s_names),
                                          [value](Name const& each) { return each.word == value; });
    if (name != std::end(s_names)) return name->dialect;
    Places places(markup);
    auto const offset = static_cast<std::size_t>(instruction->data() - markup.data());
    auto const [line, column] = places.at(offset);
    return Result<Dialect>(
        {Diagnostic(Severity::error, "Expecting dialect=\"core\" or dialect=\"web\" and no more",
                    options.name, line, column, places.excerpt(offset))});
}

}  // namespace galley
