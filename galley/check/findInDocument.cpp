#include <algorithm>
#include <cctype>
#include <string>
#include <utility>
#include <vector>

#include "galley/check/DocumentReader.h"
#include "galley/check/InlineEdges.h"
#include "galley/check/LineOfWords.h"
#include "galley/check/declarations.h"
#include "galley/check/find.h"
#include "galley/check/references.h"
#include "galley/check/wording.h"
#include "xml/dom/vocabulary.h"

namespace galley {

namespace {

bool isSpace(unsigned char c) { return std::isspace(c) != 0; }
/// A NUL byte ends running text.
bool endsWord(unsigned char c) { return c == '\0' || isSpace(c); }

/// What is shown of a word, references decoded.
std::string shownText(std::string_view word) {
    if (word.find('&') == std::string_view::npos) return std::string(word);
    String text;
    text.assign(word);
    return std::string(CLI::XML::replaceEntities(text).view());
}

/// White space and comments, of which the last one may be cut off.
bool isWithoutContent(std::string_view markup) {
    constexpr std::string_view s_commentEnd = "-->";
    for (;;) {
        auto const* const first = std::find_if_not(markup.begin(), markup.end(), isSpace);
        markup.remove_prefix(static_cast<std::size_t>(first - markup.begin()));
        if (!markup.starts_with("<!--")) return markup.empty();
        std::size_t const end = markup.find(s_commentEnd);
        if (end == std::string_view::npos) return true;
        markup.remove_prefix(end + s_commentEnd.length());
    }
}

class DocumentCheck {
public:
    DocumentCheck(std::string_view markup, CLI::XML::StyleList const& rules)
        : source(markup), reader(markup), edges(rules) {}

    Findings run() {
        for (bool isRead = false; !isRead;) {
            DocumentReader::Event const event = reader.next();
            if (reader.error) findings.push_back(*reader.error);
            switch (event) {
                case DocumentReader::Event::StartOfElement:
                    startElement();
                    break;
                case DocumentReader::Event::EndOfElement:
                    endElement();
                    break;
                case DocumentReader::Event::Text:
                    checkText();
                    break;
                case DocumentReader::Event::Other:
                    break;
                case DocumentReader::Event::EndOfDocument:
                    isRead = true;
            }
        }
        if (!reader.error) checkUnread();
        sort(findings);
        return std::move(findings);
    }

private:
    void startElement() {
        CLI::XML::EdgeSizes const room = edges.of(reader.element, reader.attributes());
        passTag(room.left > 0);
        haveRightEdge.push_back(room.right > 0);
        if (reader.element.isKnown && reader.attributes().count > 0) checkAttributesOfTag();
    }

    void endElement() {
        passTag(haveRightEdge.back());
        haveRightEdge.pop_back();
    }

    /// Only inline elements stand in a line of words. What is not displayed is not there at all.
    void passTag(bool hasEdge) {
        if (reader.element.isHidden) return;
        if (hasEdge || !isInline(reader.element)) line.end();
    }

    /// Where the attributes stand is read once more, since the parser has their decoded values
    /// only.
    void checkAttributesOfTag() {
        using namespace std::string_view_literals;
        std::size_t next = reader.start + 1 + reader.element.tag.name.length();
        attributes.clear();
        for (auto const& attribute : reader.attributes()) {
            std::size_t const name = source.find_first_not_of(" \t\n\r\0"sv, next);
            std::size_t const value = name + attribute.name.view().length() + 2;
            next = source.find('"', value);
            checkReferencesInValue(source.substr(value, next - value), value, findings);
            ++next;
            attributes.push_back({attribute.name.view(), attribute.value.view(), name, value});
        }
        checkAttributes(attributes, findings);
    }

    void checkText() {
        std::string_view const text = reader.text;
        auto const* next = text.begin();
        while (next != text.end() && *next != '\0') {
            auto const* const word = std::find_if_not(next, text.end(), isSpace);
            if (word != next) addSpace(next);
            next = std::find_if(word, text.end(), endsWord);
            if (next != word) addWord({word, next}, next != text.end() && *next != '\0');
        }
        if (std::all_of(next, text.end(), endsWord)) return;
        warn(findings, positionOf(next), "a NUL byte ends the text: what follows it is not shown");
    }

    void addSpace(char const* space) {
        if (!reader.parent().isHidden) line.addSpace(positionOf(space));
    }

    void addWord(std::string_view word, bool keepsSpace) {
        if (word.find('&') != std::string_view::npos) {
            checkReferencesInText(word, positionOf(word.data()), findings);
        }
        if (reader.parent().isHidden) return;
        auto const lost = line.addWord(word, shownText(word) + (keepsSpace ? " " : ""));
        if (!lost) return;
        warn(findings, lost->position,
             quoted(lost->before) + " and " + quoted(lost->after) +
                 " run together; put the space in front of the tag");
    }

    /// An end tag that closes nothing ends a document. It may stand at the end.
    void checkUnread() {
        std::size_t const end = source.find('>', reader.start);
        if (end == std::string_view::npos || isWithoutContent(source.substr(end + 1))) return;
        warn(findings, reader.start, "this end tag closes no element; what follows is not read");
    }

    std::size_t positionOf(char const* part) const {
        return static_cast<std::size_t>(part - source.data());
    }

    std::string_view source;
    DocumentReader reader;
    /// Of the tag that was read.
    std::vector<Declaration> attributes;
    LineOfWords line;
    InlineEdges edges;
    /// Of each open element.
    std::vector<bool> haveRightEdge;
    Findings findings;
};

}  // namespace

Findings findInDocument(std::string_view markup, CLI::XML::StyleList const& rules) {
    return DocumentCheck(markup, rules).run();
}

}  // namespace galley
