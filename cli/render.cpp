#include "cli/render.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>
#include <new>

#include "cli/files.h"
#include "cli/formats/formats.h"
#include "cli/report.h"
#include "cli/terminal/controls.h"
#include "cli/terminal/plain.h"
#include "cli/terminal/terminal.h"
#include "xml/dom/buildDomTree.h"
#include "xml/layout/BlockBox.h"
#include "xml/xml.h"

namespace {

using CLI::XML::StyleList;

Format effectiveFormat(Options const& options) {
    if (options.format != Format::Ansi || options.color == Color::Always) return options.format;
    bool const keepsColor =
        options.color == Color::Auto && options.files.empty() && CLI::XML::isColorWelcome(stdout);
    return keepsColor ? Format::Ansi : Format::Plain;
}

/// The trees that a conversion makes on its way, as text.
XCode dumpTree(String& out, String const& document, StyleList const& styles, Manner const& manner) {
    ZRLWPtr<CLI::XML::DomElement> root;
    CLI::XML::PullParser parser = CLI::XML::PullParser::withoutCopy(document);
    XCode result = CLI::XML::buildDomTree(root, true, parser, styles);
    if (!result) return result;
    if (manner.product == Product::DocumentTree) {
        out = root->dump(0);
        return result;
    }
    CLI::XML::BlockBox rootBox(root.object);
    result = rootBox.createChildren();
    if (!result) return result;
    CLI::XML::Dimensions page;
    page.content.width = static_cast<int>(std::min<unsigned>(manner.width, INT_MAX));
    rootBox.layout(page);
    out = rootBox.dump(0);
    return result;
}

void applyFormat(String& page, Format format) {
    switch (format) {
        case Format::Ansi:
            break;
        case Format::Plain:
            CLI::XML::makePlain(page);
            break;
        case Format::Html:
            makeHtml(page);
            break;
        case Format::Svg:
            makeSvg(page);
            break;
    }
}

Rendering failure(ExitStatus status, std::string const& document, char const* message,
                  std::string_view source = {}) {
    return {status, {}, errorText(inputName(document), message, source)};
}

Rendering tryToRender(std::string const& file, StyleList const& styles, Manner const& manner) {
    String document;
    if (int const fault = readFile(file, document)) {
        return failure(ExitStatus::FileAtFault, file, std::strerror(fault));
    }
    if (!manner.isRaw) CLI::XML::replaceControls(document);
    Rendering rendering;
    bool const isPage = manner.product == Product::Page;
    XCode const result = isPage
                             ? CLI::XML::xmlToText(rendering.text, document, styles, manner.width)
                             : dumpTree(rendering.text, document, styles, manner);
    if (!result) {
        return failure(ExitStatus::InputAtFault, file, result.getString().c_str(), document.view());
    }
    if (!manner.isRaw) CLI::XML::repairCharacters(rendering.text);
    if (isPage) applyFormat(rendering.text, manner.format);
    return rendering;
}

}  // namespace

Manner::Manner(Options const& options)
    : width(options.width ? *options.width : CLI::XML::terminalWidth(stdout)),
      product(options.product),
      format(effectiveFormat(options)),
      isRaw(options.isRaw) {
    if (options.maxWidth) width = std::min(width, *options.maxWidth);
}

Rendering render(std::string const& document, StyleList const& styles, Manner const& manner) {
    try {
        return tryToRender(document, styles, manner);
    } catch (std::bad_alloc const&) {
        return failure(ExitStatus::InputAtFault, document, "Out of memory");
    }
}
