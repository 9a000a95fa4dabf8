// The tool: one document, any number of sheets, one page.

#include <algorithm>
#include <climits>
#include <new>

#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/controls.h"
#include "cli/files.h"
#include "cli/report.h"
#include "cli/terminalWidth.h"
#include "xml/dom/buildDomTree.h"
#include "xml/layout/BlockBox.h"
#include "xml/xml.h"

namespace {

using CLI::XML::StyleList;

/// Reads a document or a sheet.
bool readInput(std::string const& file, String& text, Options const& options) {
    if (!readFile(file, text)) return false;
    if (!options.isRaw) replaceControls(text);
    return true;
}

/// Appends the rules of a sheet to `styles`.
ExitStatus readSheet(std::string const& file, StyleList& styles, Options const& options) {
    String css;
    if (!readInput(file, css, options)) return ExitStatus::FileAtFault;
    StyleList rules;
    XCode const result = CLI::XML::parseCss(rules, css);
    if (!result) {
        reportError(displayName(file), result.getString().c_str(), css.view(), SourceKind::Sheet);
        return ExitStatus::InputAtFault;
    }
    for (auto const& rule : rules) styles.add(rule);
    return ExitStatus::Rendered;
}

/// The trees that a conversion makes on its way, as text.
XCode dumpTree(String& out, String const& document, StyleList const& styles, unsigned width,
               Options::Output output) {
    ZRLWPtr<CLI::XML::DomElement> root;
    CLI::XML::PullParser parser(document);
    XCode result = CLI::XML::buildDomTree(root, true, parser, styles);
    if (!result) return result;
    if (output == Options::Output::DocumentTree) {
        out = root->dump(0);
        return result;
    }
    CLI::XML::BlockBox rootBox(root.object);
    result = rootBox.createChildren();
    if (!result) return result;
    CLI::XML::Dimensions page;
    page.content.width = static_cast<int>(std::min<unsigned>(width, INT_MAX));
    rootBox.layout(page);
    out = rootBox.dump(0);
    return result;
}

ExitStatus run(Options const& options) {
    StyleList styles;
    for (std::string const& sheet : options.sheets) {
        ExitStatus const status = readSheet(sheet, styles, options);
        if (status != ExitStatus::Rendered) return status;
    }
    String document;
    if (!readInput(options.document, document, options)) return ExitStatus::FileAtFault;

    unsigned const width = options.width ? *options.width : terminalWidth();
    String page;
    XCode const result = options.output == Options::Output::Page
                             ? CLI::XML::xmlToText(page, document, styles, width)
                             : dumpTree(page, document, styles, width, options.output);
    if (!result) {
        reportError(displayName(options.document), result.getString().c_str(), document.view());
        return ExitStatus::InputAtFault;
    }
    if (!options.isRaw) repairCharacters(page);
    return writeOutput(page) ? ExitStatus::Rendered : ExitStatus::FileAtFault;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    std::optional<ExitStatus> status = parseCommandLine(argc, argv, options);
    if (!status) {
        try {
            status = run(options);
        } catch (std::bad_alloc const&) {
            reportError(displayName(options.document), "Out of memory");
            status = ExitStatus::InputAtFault;
        }
    }
    return static_cast<int>(*status);
}
