// galley-embed OUTPUT FUNCTION DOCUMENT [SHEET...]: checks a document and its sheets as the tool
// does, and writes the source of a function that prints the page. Where there is a fault it says so
// as a compiler would, and leaves no output. Only galley_embed in cmake/ calls it.

#include <cstdio>
#include <cstring>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/embed/sourceText.h"
#include "cli/files.h"
#include "cli/report.h"
#include "cli/writeFile.h"
#include "galley/checkMarkup.h"
#include "galley/galley.h"

namespace {

/// Reads a file and prints what `checkText` finds in its text.
template <class Check>
ExitStatus check(Input& input, Check const& checkText) {
    String content;
    if (int const fault = readFile(input.name, content)) {
        reportError(inputName(input.name), std::strerror(fault));
        return ExitStatus::FileAtFault;
    }
    input.text = content.view();
    std::vector<galley::Diagnostic> const found = checkText(content);
    std::fputs(textOf(found).c_str(), stderr);
    return statusOf(found, false);
}

/// Reads and checks all inputs and returns the status of the first failure.
ExitStatus checkAll(Input& document, std::vector<Input>& sheets) {
    galley::Sheet sheet;
    ExitStatus status = ExitStatus::Rendered;
    auto const keepFirst = [&status](ExitStatus next) {
        if (status == ExitStatus::Rendered) status = next;
    };
    for (Input& input : sheets) {
        keepFirst(check(input, [&](String const& css) {
            std::string const name = inputName(input.name);
            if (auto const added = galley::Sheet::parse(css.view(), name)) sheet += *added;
            return galley::checkSheet(css.view(), name);
        }));
    }
    keepFirst(check(document, [&](String& markup) {
        galley::Options options;
        options.name = inputName(document.name);
        // Any would do: a page that fails, fails at every width, or is larger than any terminal.
        options.width = 80;
        return galley::checkMarkup(markup, sheet, options);
    }));
    return status;
}

ExitStatus embed(std::string const& output, std::string const& function, Input document,
                 std::vector<Input> sheets) {
    ExitStatus const status = checkAll(document, sheets);
    if (status != ExitStatus::Rendered) return status;
    int const fault = writeFile(output, sourceText(function, document, sheets));
    if (fault == 0) return ExitStatus::Rendered;
    reportError(output, std::strerror(fault));
    return ExitStatus::FileAtFault;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("usage: galley-embed OUTPUT FUNCTION DOCUMENT [SHEET...]\n", stderr);
        return static_cast<int>(ExitStatus::Usage);
    }
    std::string const output = argv[1];
    auto status = ExitStatus::InputAtFault;
    try {
        std::vector<Input> sheets;
        for (int i = 4; i < argc; ++i) sheets.push_back({argv[i], {}});
        status = embed(output, argv[2], {argv[3], {}}, std::move(sheets));
    } catch (std::bad_alloc const&) {
        reportError("galley-embed", "Out of memory");
    }
    // What an earlier build left would pass for today's.
    if (status != ExitStatus::Rendered) std::remove(output.c_str());
    return static_cast<int>(status);
}
