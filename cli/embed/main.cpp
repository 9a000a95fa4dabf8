// galley-embed OUTPUT FUNCTION DOCUMENT [SHEET...]: checks a document and its sheets as the tool
// does, and writes the source of a function that prints the page. Where there is a fault it says so
// as a compiler would, and leaves no output. Only galley_embed in cmake/ calls it.

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/ExitStatus.h"
#include "cli/embed/sourceText.h"
#include "cli/files.h"
#include "cli/report.h"
#include "cli/terminal/addSheet.h"
#include "cli/terminal/controls.h"
#include "cli/writeFile.h"
#include "xml/xml.h"

namespace {

/// Any would do: a page that fails, fails at every width, or is larger than any terminal.
constexpr unsigned s_width = 80;

/// The name of a file and what is in it.
struct Input {
    std::string name;
    String bytes;
};

/// Reads a file and has its text converted, without control characters, as for printing.
template <class Convert>
ExitStatus check(Input& input, SourceKind kind, Convert const& convert) {
    if (int const fault = readFile(input.name, input.bytes)) {
        reportError(inputName(input.name), std::strerror(fault));
        return ExitStatus::FileAtFault;
    }
    String text = input.bytes;
    CLI::XML::replaceControls(text);
    XCode const result = convert(text);
    if (result) return ExitStatus::Rendered;
    reportError(inputName(input.name), result.getString().c_str(), text.view(), kind);
    return ExitStatus::InputAtFault;
}

/// Reads and checks all inputs and returns the status of the first failure.
ExitStatus checkAll(Input& document, std::vector<Input>& sheets) {
    CLI::XML::StyleList styles;
    ExitStatus status = ExitStatus::Rendered;
    for (Input& sheet : sheets) {
        ExitStatus const checked = check(sheet, SourceKind::Sheet, [&](String const& css) {
            return CLI::XML::addSheet(styles, css);
        });
        if (status == ExitStatus::Rendered) status = checked;
    }
    ExitStatus const checked = check(document, SourceKind::Document, [&](String const& xml) {
        String page;
        return CLI::XML::xmlToText(page, xml, styles, s_width);
    });
    return status == ExitStatus::Rendered ? checked : status;
}

ExitStatus embed(std::string const& output, std::string const& function, Input document,
                 std::vector<Input> sheets) {
    ExitStatus const status = checkAll(document, sheets);
    if (status != ExitStatus::Rendered) return status;
    std::vector<std::string_view> rules(sheets.size());
    std::transform(sheets.begin(), sheets.end(), rules.begin(),
                   [](Input const& sheet) { return sheet.bytes.view(); });
    int const fault = writeFile(output, sourceText(function, document.bytes.view(), rules));
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
