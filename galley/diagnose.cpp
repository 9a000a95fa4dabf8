#include "galley/diagnose.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

#include "galley/Places.h"
#include "galley/check/locateError.h"

namespace galley {

namespace {

/// A message of the core, its line number set apart.
struct Message {
    /// 0 where it has none.
    unsigned line = 0;
    std::string_view words;
};

/// "3: WORDS", "Line 3: WORDS" or words alone.
Message parseMessage(std::string_view message) {
    std::string_view const prefix = "Line ";
    std::size_t const number = message.starts_with(prefix) ? prefix.length() : 0;
    std::size_t const end =
        std::min(message.find_first_not_of("0123456789", number), message.length());
    Message parsed{0, message};
    if (end == number || message.substr(end, 2) != ": ") return parsed;
    std::from_chars(message.data() + number, message.data() + end, parsed.line);
    parsed.words = message.substr(end + 2);
    return parsed;
}

/// Turns findings into what is told, in their order.
class Teller {
public:
    explicit Teller(Source const& of) : source(of), places(of.text) {}

    Diagnostic tell(Finding const& finding) {
        bool const isError = finding.kind == Finding::Kind::Error;
        Diagnostic diagnostic =
            at(finding.position, isError ? Severity::error : Severity::warning, finding.message);
        if (auto const& unclosed = finding.unclosed) {
            std::string note = "Start tag <" + std::string(unclosed->name) + "> is here";
            diagnostic.addNote(at(unclosed->position, Severity::note, std::move(note)));
        }
        return diagnostic;
    }

private:
    Diagnostic at(std::size_t position, Severity severity, std::string message) {
        auto const [line, column] = places.at(position);
        return Diagnostic(severity, std::move(message), std::string(source.name), line, column,
                          places.excerpt(position));
    }

    Source const& source;
    Places places;
};

}  // namespace

std::vector<Diagnostic> diagnose(Findings const& findings, Source const& source) {
    Teller teller(source);
    std::vector<Diagnostic> diagnostics;
    for (Finding const& finding : findings) diagnostics.push_back(teller.tell(finding));
    return diagnostics;
}

Diagnostic diagnose(std::string_view message, Source const& document) {
    if (auto const finding = locateInDocument(document.text, std::string(message))) {
        return Teller(document).tell(*finding);
    }
    auto const [line, words] = parseMessage(message);
    return Diagnostic(Severity::error, std::string(words), std::string(document.name), line);
}

}  // namespace galley
