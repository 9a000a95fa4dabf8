#include "galley/formats/HtmlWriter.h"

#include "base/append.h"
#include "galley/formats/characters.h"
#include "galley/formats/encodeAddress.h"

namespace galley {

using CLI::XML::append;
using web::Row;

namespace {

/// Without folders.
std::string titleOf(std::string const& name) { return name.substr(name.find_last_of('/') + 1); }

}  // namespace

HtmlWriter::HtmlWriter(String& page, Options const& options, CellRule cellRule)
    : out(page),
      rule(cellRule),
      isDocument(options.standalone),
      title(titleOf(options.name)),
      style(options.theme) {}

void HtmlWriter::take(Row const& row) {
    for (Row::Span const& span : row.spans()) {
        changeLink(span.look.link);
        std::string const name = style.use(span.look);
        if (!name.empty()) append(rows, "<span class=\"", name, "\">");
        writeText(row.textOf(span));
        if (!name.empty()) append(rows, "</span>");
    }
    changeLink(nullptr);
    append(rows, "\n");
}

void HtmlWriter::changeLink(web::Link const* next) {
    if (next == link) return;
    if (link != nullptr) append(rows, "</a>");
    link = next;
    if (link == nullptr) return;
    append(rows, "<a href=\"");
    appendEscaped(rows, encodeAddress(link->address));
    append(rows, "\">");
}

void HtmlWriter::writeText(std::string_view text) {
    while (!text.empty()) {
        Piece const piece = takePiece(text, rule);
        if (piece.kind == Piece::Kind::wide) {
            writeWide(piece.text);
        } else {
            appendEscaped(rows, piece.text);
        }
    }
}

/// Fonts have their own idea of how wide these are.
void HtmlWriter::writeWide(std::string_view text) {
    while (!text.empty()) {
        append(rows, "<span class=\"", style.useWide(), "\">");
        appendEscaped(rows, takeUnit(text, rule).text);
        append(rows, "</span>");
    }
}

void HtmlWriter::describe(web::DocumentInfo const& document) {
    if (!document.title.empty()) title = document.title;
    language = document.language;
}

void HtmlWriter::finish() {
    if (isDocument) writeHead();
    // The line feed at once behind the start tag belongs to the tag.
    append(out, "<pre class=\"", style.pageClass(), "\">\n");
    if (!isDocument) {
        append(out, "<style>\n");
        style.appendRules(out, isDocument);
        append(out, "</style>");
    }
    append(out, rows.view(), "</pre>\n");
    if (isDocument) append(out, "</body>\n</html>\n");
}

void HtmlWriter::writeHead() {
    append(out, "<!DOCTYPE html>\n<html");
    if (!language.empty()) {
        append(out, " lang=\"");
        appendEscaped(out, language);
        append(out, "\"");
    }
    append(out,
           ">\n<head>\n<meta charset=\"utf-8\"/>\n"
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n<title>");
    appendEscaped(out, title);
    append(out, "</title>\n<style>\n");
    style.appendRules(out, isDocument);
    append(out, "</style>\n</head>\n<body>\n");
}

}  // namespace galley
