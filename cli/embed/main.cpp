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
#include "galley/dialect.h"
#include "galley/galley.h"

namespace {

ExitStatus tellFault(std::string const& name, int fault) {
    reportError(inputName(name), std::strerror(fault));
    return ExitStatus::FileAtFault;
}

ExitStatus tell(std::vector<galley::Diagnostic> const& found) {
    std::fputs(textOf(found).c_str(), stderr);
    return statusOf(found, false);
}

/// Reads a sheet and adds it to others.
ExitStatus checkSheet(Input& input, galley::Dialect dialect, galley::Sheet& sheet) {
    String css;
    if (int const fault = readFile(input.name, css)) return tellFault(input.name, fault);
    input.text = css.view();
    std::string const name = inputName(input.name);
    if (auto const added = galley::Sheet::parse(css.view(), name, dialect)) sheet += *added;
    return tell(galley::checkSheet(css.view(), name, dialect));
}

ExitStatus checkDocument(String& markup, galley::Sheet const& sheet, galley::Options options) {
    // Any would do: a page that fails, fails at every width, or is larger than any terminal.
    options.width = 80;
    return tell(galley::checkMarkup(markup, sheet, options));
}

/// Reads and checks all inputs, the document last, and returns the status of the first failure.
ExitStatus checkAll(Page& page) {
    String markup;
    // It says the dialect of the sheets, though what is wrong with them is told first.
    int const fault = readFile(page.document.name, markup);
    page.document.text = markup.view();
    galley::Options options;
    options.name = inputName(page.document.name);
    auto const dialect = galley::dialectOf(markup.view(), options);
    page.dialect = dialect ? *dialect : galley::s_defaultDialect;
    galley::Sheet sheet;
    ExitStatus status = ExitStatus::Rendered;
    auto const keepFirst = [&status](ExitStatus next) {
        if (status == ExitStatus::Rendered) status = next;
    };
    for (Input& input : page.sheets) keepFirst(checkSheet(input, page.dialect, sheet));
    keepFirst(fault != 0 ? tellFault(page.document.name, fault)
                         : checkDocument(markup, sheet, options));
    return status;
}

ExitStatus embed(std::string const& output, std::string const& function, Page page) {
    ExitStatus const status = checkAll(page);
    if (status != ExitStatus::Rendered) return status;
    int const fault = writeFile(output, sourceText(function, page));
    return fault == 0 ? ExitStatus::Rendered : tellFault(output, fault);
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
        Page page;
        page.document.name = argv[3];
        for (int i = 4; i < argc; ++i) page.sheets.push_back({argv[i], {}});
        status = embed(output, argv[2], std::move(page));
    } catch (std::bad_alloc const&) {
        reportError("galley-embed", "Out of memory");
    }
    // What an earlier build left would pass for today's.
    if (status != ExitStatus::Rendered) std::remove(output.c_str());
    return static_cast<int>(status);
}
