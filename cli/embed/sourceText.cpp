#include "cli/embed/sourceText.h"

#include <algorithm>

namespace {

constexpr std::string_view s_lineStart = "        \"";

/// Whether a byte may stand in a string literal as it is, in any character set.
bool isPlain(char byte) {
    return byte >= ' ' && byte <= '~' && byte != '"' && byte != '\\' && byte != '?';
}

/// One byte in a string literal. Three octal digits end an escape sequence, whatever follows.
std::string escaped(char byte) {
    if (isPlain(byte)) return {byte};
    if (byte == '\n') return "\\n";
    if (byte == '"') return "\\\"";
    auto const code = static_cast<unsigned char>(byte);
    auto const digit = [code](unsigned shift) {
        return static_cast<char>('0' + (code >> shift & 7U));
    };
    return {'\\', digit(6), digit(3), digit(0)};
}

/// A view of `bytes` as an argument, a line of the source for each of theirs.
std::string literal(std::string_view bytes) {
    std::string text(s_lineStart);
    for (std::size_t i = 0; i < bytes.length(); ++i) {
        text += escaped(bytes[i]);
        if (bytes[i] == '\n' && i + 1 < bytes.length()) text.append("\"\n").append(s_lineStart);
    }
    return text + "\"sv";
}

}  // namespace

std::string sourceText(std::string const& function, Page const& page) {
    std::string const dialect =
        page.dialect == galley::Dialect::core ? "galley::Dialect::core" : "galley::Dialect::web";
    std::string text = "// Made by galley_embed.\n#include \"" + function +
                       ".h\"\n\n#include <string_view>\n\ngalley::Result<void> " + function +
                       "(std::FILE* out, galley::Options options) {\n"
                       "    using namespace std::literals;\n"
                       "    galley::Sheet all;\n";
    for (Input const& sheet : page.sheets) {
        text += "    if (auto const sheet = galley::Sheet::parse(\n" + literal(sheet.text) + ",\n" +
                literal(sheet.name) + ",\n        " + dialect +
                ")) {\n        all += *sheet;\n    } else {\n        return sheet;\n    }\n";
    }
    return text + "    options.dialect = " + dialect + ";\n    options.name =\n" +
           literal(page.document.name) + ";\n    return galley::print(\n" +
           literal(page.document.text) + ",\n        all, options, out);\n}\n";
}
