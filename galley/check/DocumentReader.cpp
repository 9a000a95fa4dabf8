#include <algorithm>
#include <cctype>
#include <new>
#include <vector>

#include "cli/BoxPath.h"
#include "cli/locateError.h"
#include "xml/dom/createDomElement.h"

namespace {

using CLI::XML::PullParser;

constexpr std::string_view s_refusal = "Cannot layout ";
/// Length of "]]>".
constexpr std::size_t s_cdataEnd = 3;

/// One more reading of a document, up to the first failure of the kind that is looked for.
class DocumentSearch {
public:
    /// `markup` is what the parser reads, `document` the same bytes.
    DocumentSearch(std::string_view document, String const& markup, bool isRefusal)
        : source(document), parser(PullParser::withoutCopy(markup)) {
        if (isRefusal) boxes.emplace();
    }

    /// Success at the end of the document, otherwise the library's message; then `place` is set.
    XCode run() {
        for (;;) {
            start = static_cast<std::size_t>(parser.position);
            PullParser::TagType const next = parser.getNextTag();
            bool const isEnd = next == PullParser::TAG_END_OF_DOCUMENT;
            // An end tag that closes nothing ends the document too.
            if (open.empty() && (isEnd || next == PullParser::TAG_END)) return XCode();
            XCode result = isEnd ? failAtEnd() : read(next);
            if (!result) return result;
        }
    }

    ErrorPlace place;

private:
    XCode read(PullParser::TagType next) {
        switch (next) {
            case PullParser::TAG_START:
                return startElement();
            case PullParser::TAG_END:
                return endElement();
            case PullParser::TAG_CONTENT:
                return addContent();
            case PullParser::TAG_COMMENT:
                return syntax(parser.skipCommentTag());
            default:
                return syntax(parser.skipOtherTag());
        }
    }

    XCode startElement() {
        XCode result = syntax(parser.readStartTag());
        if (!result) return result;
        place.position = start;
        if (!CLI::XML::createDomElement(parser.name)) {
            return testExpression(false).setStringF("Invalid tag: <%s>", parser.name.c_str());
        }
        open.push_back({start, source.substr(start + 1, parser.name.view().length())});
        return boxes ? boxes->startElement(parser) : XCode();
    }

    XCode endElement() {
        XCode result = syntax(parser.readEndTag());
        if (!result) return result;
        if (parser.name.view() != open.back().name) {
            place = {start, open.back()};
            return testExpression(false).setStringF("End tag </%s> does not match start tag <%s>",
                                                    parser.name.c_str(),
                                                    std::string(open.back().name).c_str());
        }
        open.pop_back();
        if (boxes) boxes->endElement();
        return XCode();
    }

    XCode addContent() {
        XCode result = syntax(parser.readContent());
        if (!result || !boxes) return result;
        std::string_view const content = parser.content.view();
        bool const isCdata = source[start] == '<';
        auto const end = static_cast<std::size_t>(parser.position) - (isCdata ? s_cdataEnd : 0);
        auto const isSpace = [](unsigned char c) { return std::isspace(c) != 0; };
        auto const word = std::find_if_not(content.begin(), content.end(), isSpace);
        // A NUL byte ends the words of a content.
        if (word == content.end() || *word == '\0') return result;
        place.position = end - static_cast<std::size_t>(content.end() - word);
        return boxes->addText();
    }

    XCode failAtEnd() {
        place = {start, open.back()};
        return testExpression(false).setStringF("Line %d: Missing end tag at the end", parser.line);
    }

    XCode syntax(XCode result) {
        if (!result) {
            place.position = static_cast<std::size_t>(parser.position);
            result.setString(parser.errorMessage);
        }
        return result;
    }

    std::string_view source;
    PullParser parser;
    /// Where the last event began.
    std::size_t start = 0;
    std::vector<UnclosedElement> open;
    /// Only where a box refused a child: that happens to a document without other faults.
    std::optional<BoxPath> boxes;
};

}  // namespace

std::optional<ErrorPlace> locateInDocument(std::string_view document, std::string const& message) {
    try {
        String markup;
        markup.assign(document);
        DocumentSearch search(document, markup, message.starts_with(s_refusal));
        XCode const result = search.run();
        bool const isFound = !result && result.getString() == message.c_str();
        return isFound ? std::optional(search.place) : std::nullopt;
    } catch (std::bad_alloc const&) {
        return std::nullopt;
    }
}
