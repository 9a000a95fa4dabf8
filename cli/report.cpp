#include "cli/report.h"

#include <algorithm>
#include <cstdio>

std::string inputName(std::string const& file) { return file == "-" ? "<stdin>" : file; }

std::string errorText(std::string const& source, std::string const& message) {
    return galley::Diagnostic(galley::Severity::error, message, source).text();
}

void reportError(std::string const& source, std::string const& message) {
    std::fputs(errorText(source, message).c_str(), stderr);
}

std::string textOf(std::vector<galley::Diagnostic> const& diagnostics) {
    std::string text;
    for (galley::Diagnostic const& diagnostic : diagnostics) text += diagnostic.text();
    return text;
}

ExitStatus statusOf(std::vector<galley::Diagnostic> const& found, bool isStrict) {
    auto const isFault = [isStrict](galley::Diagnostic const& diagnostic) {
        return isStrict || diagnostic.severity() == galley::Severity::error;
    };
    bool const hasFault = std::any_of(found.begin(), found.end(), isFault);
    return hasFault ? ExitStatus::InputAtFault : ExitStatus::Rendered;
}
