#include "cli/report.h"

#include <algorithm>
#include <cstdio>
#include <optional>

#include "base/append.h"
#include "cli/sourceExcerpt.h"
#include "cli/terminal/controls.h"
#include "galley/check/locateError.h"

namespace {

/// A message of the library, its line number set apart.
struct Message {
    /// Empty where it has none.
    std::string_view line;
    std::string_view words;
};

/// "3: WORDS", "Line 3: WORDS" or words alone.
Message parseMessage(std::string_view message) {
    std::string_view const prefix = "Line ";
    std::size_t const number = message.starts_with(prefix) ? prefix.length() : 0;
    std::size_t const end =
        std::min(message.find_first_not_of("0123456789", number), message.length());
    bool const hasLine = end != number && message.substr(end, 2) == ": ";
    if (!hasLine) return {"", message};
    return {message.substr(number, end - number), message.substr(end + 2)};
}

/// Leaves nothing in a text that would drive a terminal or end the line.
std::string inOneLine(std::string_view text) {
    String line;
    CLI::XML::append(line, text);
    CLI::XML::replaceControls(line);
    std::string shown(line.view());
    auto const isControl = [](char c) { return c >= '\t' && c <= '\r'; };
    std::replace_if(shown.begin(), shown.end(), isControl, '?');
    return shown;
}

/// The first line of what is said about a place of a file.
std::string heading(std::string const& file, std::string_view line, std::string_view words) {
    std::string text = inOneLine(file);
    if (!line.empty()) text.append(":").append(line);
    return text.append(": ").append(inOneLine(words)) + '\n';
}

std::string lineText(std::string_view source, std::size_t position) {
    return std::to_string(lineNumber(source, position));
}

}  // namespace

std::string inputName(std::string const& file) { return file == "-" ? "<stdin>" : file; }

std::string errorText(std::string const& file, std::string const& message, std::string_view source,
                      SourceKind kind) {
    auto const [line, words] = parseMessage(message);
    std::string const error = "error: " + std::string(words);
    auto const locate =
        kind == SourceKind::Document ? galley::locateInDocument : galley::locateInSheet;
    std::optional<galley::Finding> place;
    if (!source.empty()) place = locate(source, message);
    if (!place) return heading(file, line, error);

    std::string text = heading(file, lineText(source, place->position), error) +
                       sourceExcerpt(source, place->position);
    if (auto const& unclosed = place->unclosed) {
        std::string const note = "note: Start tag <" + std::string(unclosed->name) + "> is here";
        text += heading(file, lineText(source, unclosed->position), note) +
                sourceExcerpt(source, unclosed->position);
    }
    return text;
}

void reportError(std::string const& file, std::string const& message, std::string_view source,
                 SourceKind kind) {
    std::string const text = errorText(file, message, source, kind);
    std::fwrite(text.data(), 1, text.length(), stderr);
}
