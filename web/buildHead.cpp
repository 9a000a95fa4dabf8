// What a document says before its content: its sheets, its title, its language.

#include <algorithm>
#include <string>
#include <utility>

#include "web/PageBuilder.h"
#include "web/css/Tokenizer.h"
#include "web/text/whiteSpace.h"
#include "web/wording.h"

namespace galley::web {

void PageBuilder::styleSheet(EmbeddedSheet const& sheet) {
    embeddedBytes += sheet.text().size();
    if (embeddedBytes > Tokenizer::s_longest) {
        return warn(problems, sheet.offsetOf(0),
                    "sheets of a document are read up to 4 MiB; this one has no effect");
    }
    std::string text(sheet.text());
    std::size_t before = 0;
    if (!sheet.media().empty()) {
        std::string const condition = "@media " + std::string(sheet.media()) + "{";
        before = condition.size();
        text.insert(0, condition).append("}");
    }
    std::vector<Problem> found;
    embedded.push_back(Sheet::parse(text, found));
    sheets.push_back(&embedded.back());
    for (Problem& problem : found) {
        problem.offset = sheet.offsetOf(std::max(problem.offset, before) - before);
        tell(problems, std::move(problem));
    }
}

bool PageBuilder::asksForLastChild() {
    cascade.emplace(defaultSheet, sheets, media, problems);
    return std::any_of(sheets.begin(), sheets.end(),
                       [](Sheet const* sheet) { return sheet->asksForLastChild(); });
}

void PageBuilder::readLanguage(Element const& root) {
    for (Attribute const& attribute : root.attributes) {
        bool const isLanguage = attribute.name == "lang" || attribute.name == "xml:lang";
        if (isLanguage && document.language.empty()) document.language = attribute.value;
    }
}

void PageBuilder::title(std::string_view decoded) {
    for (char const c : decoded) {
        std::string& text = document.title;
        if (!isWhiteSpace(c)) {
            text += c;
        } else if (!text.empty() && text.back() != ' ') {
            text += ' ';
        }
    }
}

}  // namespace galley::web
