#include "base/append.h"
#include "galley/formats/characters.h"
#include "galley/formats/formats.h"
#include "galley/formats/htmlStyle.h"

namespace galley {

using CLI::XML::append;

namespace {

void appendHead(String& html, std::string_view page, HtmlOptions const& options) {
    append(html,
           "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\"/>\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n<title>");
    appendEscaped(html, options.title);
    append(html, "</title>\n<style>\n");
    appendRules(html, page, options);
    append(html, "</style>\n</head>\n<body>\n");
}

void appendRun(String& html, AnsiReader::Run const& run) {
    std::string const name = run.text.empty() ? "" : lookClass(run.look);
    if (!name.empty()) append(html, "<span class=\"", name, "\">");
    appendEscaped(html, run.text);
    if (!name.empty()) append(html, "</span>");
    if (run.endsRow) append(html, "\n");
}

void appendElement(String& html, std::string_view page, HtmlOptions const& options) {
    // The line feed at once behind the start tag belongs to the tag.
    append(html, "<pre class=\"", pageClass(options.theme), "\">\n");
    if (!options.isDocument) {
        append(html, "<style>\n");
        appendRules(html, page, options);
        append(html, "</style>");
    }
    AnsiReader reader(page);
    for (AnsiReader::Run run; reader.next(run);) appendRun(html, run);
    append(html, "</pre>\n");
}

}  // namespace

void makeHtml(String& page, HtmlOptions const& options) {
    String html;
    if (options.isDocument) appendHead(html, page.view(), options);
    appendElement(html, page.view(), options);
    if (options.isDocument) append(html, "</body>\n</html>\n");
    page = std::move(html);
}

}  // namespace galley
