#include "base/append.h"
#include "galley/formats/characters.h"
#include "galley/formats/formats.h"
#include "galley/formats/style.h"

using CLI::XML::AnsiReader;
using CLI::XML::append;
using CLI::XML::Look;

namespace {

/// What differs from the element around the run.
std::string runCss(Look const& look) {
    CellColors const colors = cellColors(look);
    CellColors const usual = cellColors({});
    std::string css;
    if (colors.text != usual.text) css += "color:" + colors.text + ";";
    if (colors.ground != usual.ground) css += "background:" + colors.ground + ";";
    return css + attributeCss(look);
}

void appendRun(String& html, AnsiReader::Run const& run) {
    std::string const css = runCss(run.look);
    if (!css.empty()) append(html, "<span style=\"", css, "\">");
    appendEscaped(html, run.text);
    if (!css.empty()) append(html, "</span>");
    if (run.endsRow) append(html, "\n");
}

}  // namespace

void makeHtml(String& page) {
    CellColors const usual = cellColors({});
    String html;
    // The line feed at once behind the start tag belongs to the tag.
    append(html, "<pre style=\"color:", usual.text, ";background:", usual.ground,
           ";padding:1em;font-family:monospace;line-height:1.2\">\n", blinkElement(page.view()));
    AnsiReader reader(page.view());
    for (AnsiReader::Run run; reader.next(run);) appendRun(html, run);
    append(html, "</pre>\n");
    page = std::move(html);
}
