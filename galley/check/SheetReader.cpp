#include "cli/locateError.h"
#include "xml/parser/scan.h"

namespace {

using CLI::XML::ByteSet;

// What ends a token in a sheet.
constexpr ByteSet s_whitespace(" \t\v\r\n");
constexpr ByteSet s_endOfSelector(" \t\v\r\n{");
constexpr ByteSet s_endOfProperty(" \t\v\r\n:}");
constexpr ByteSet s_endOfValue(" \t\v\r\n;");

/// One more reading of a sheet, up to what is not expected there.
class SheetSearch {
public:
    explicit SheetSearch(String const& css) : text(css) {}

    /// False where something else is expected at `position`, on `line`.
    bool run() {
        skipWhitespace();
        while (position < text.length()) {
            if (!readRule()) return false;
        }
        return true;
    }

    int position = 0;
    int line = 1;
    char const* expected = "";

private:
    bool readRule() {
        if (!readToken(s_endOfSelector, "'{'") || !consume('{', "'{'")) return false;
        while (readToken(s_endOfProperty, "'}'")) {
            bool const isDeclaration =
                consume(':', "':'") && readToken(s_endOfValue, "value") && consume(';', "';'");
            if (!isDeclaration) return false;
        }
        return consume('}', "'}'");
    }

    bool readToken(ByteSet const& stopSet, char const* what) {
        expected = what;
        bool const isThere = !CLI::XML::takeUntil(text, position, line, stopSet).empty();
        skipWhitespace();
        return isThere;
    }

    bool consume(char c, char const* what) {
        expected = what;
        if (!CLI::XML::parseCharacter(text, position, c)) return false;
        skipWhitespace();
        return true;
    }

    void skipWhitespace() { CLI::XML::skipCharacters(text, position, line, s_whitespace); }

    String const& text;
};

}  // namespace

std::optional<ErrorPlace> locateInSheet(std::string_view sheet, std::string const& message) {
    String css;
    css.assign(sheet);
    SheetSearch search(css);
    if (search.run()) return std::nullopt;
    String const found(String::formatted, "Line %d: Expecting %s", search.line, search.expected);
    if (!(found == message.c_str())) return std::nullopt;
    return ErrorPlace{static_cast<std::size_t>(search.position), std::nullopt};
}
