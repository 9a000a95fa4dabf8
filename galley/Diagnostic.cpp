#include "base/append.h"
#include "galley/galley.h"
#include "galley/terminal/controls.h"
#include "web/text/visible.h"

namespace galley {

namespace {

constexpr char const* s_severities[] = {"error: ", "warning: ", "note: "};

/// Leaves nothing in a text that would drive a terminal, change how the rest is shown, or end the
/// line.
std::string inOneLine(std::string_view text) {
    String line;
    CLI::XML::append(line, web::visible(text));
    // Bytes that belong to no character.
    replaceControls(line);
    return std::string(line.view());
}

}  // namespace

std::string Diagnostic::text() const {
    std::string all = inOneLine(ownSource);
    for (unsigned const number : {ownLine, ownColumn}) {
        if (number > 0) all.append(":").append(std::to_string(number));
    }
    all.append(": ").append(s_severities[static_cast<unsigned>(ownSeverity)]);
    all.append(inOneLine(ownMessage)).append("\n").append(ownExcerpt);
    for (Diagnostic const& note : ownNotes) all += note.text();
    return all;
}

// Here, so that programs without exceptions can include the header.
void Result<void>::value() const {
    if (!*this) throw Failure(error().text());
}

}  // namespace galley
