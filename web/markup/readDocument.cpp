#include "web/markup/readDocument.h"

#include <algorithm>
#include <string>
#include <unordered_set>

#include "web/markup/OpenElements.h"
#include "web/markup/References.h"
#include "web/markup/Scanner.h"
#include "web/markup/TextRun.h"
#include "web/markup/Utf8Check.h"
#include "web/markup/encoding.h"
#include "web/markup/findLastChildren.h"
#include "web/markup/readSheets.h"
#include "web/markup/vocabulary.h"
#include "web/suggest.h"
#include "web/text/whiteSpace.h"
#include "web/wording.h"

namespace galley::web {

namespace {

class DocumentReader {
public:
    DocumentReader(std::string_view markup, DocumentHandler& receiver, std::vector<Problem>& found)
        : source(markup),
          handler(receiver),
          problems(found),
          scanner(markup, found),
          utf8(markup, found),
          run(utf8, found) {}

    bool read() {
        if (handler.asksForLastChild()) isLast = findLastChildren(source);
        Piece piece;
        while (scanner.next(piece)) {
            if (piece.kind == Piece::Kind::endOfDocument) return endDocument();
            if (!take(piece)) return false;
        }
        return false;
    }

private:
    bool take(Piece& piece) {
        switch (piece.kind) {
            case Piece::Kind::startTag:
                return startElement(piece);
            case Piece::Kind::endTag:
                return endElement(piece);
            default:
                if (!isHidden() || isTitle()) run.add(piece);
                return true;
        }
    }

    bool isHidden() { return open.size() > 0 && open.innermost().isHidden; }

    bool isTitle() {
        return open.size() > 1 && open.innermost().element.name == "title" &&
               open[open.size() - 2].element.name == "head";
    }

    void handOverText() {
        std::string_view const text = run.take();
        if (text.empty()) return;
        if (isHidden()) {
            handler.title(text);
        } else {
            handler.text(text);
        }
    }

    bool startElement(Piece& tag) {
        handOverText();
        if (open.size() == OpenElements::s_most) {
            return fail(problems, tag.offset,
                        "Elements are more than " + std::to_string(OpenElements::s_most) + " deep");
        }
        OpenElement& opened = open.push(tag);
        std::size_t const number = count++;
        opened.element.isLast = number < isLast.size() && isLast[number];
        ElementType const* const type = findElementType(tag.name);
        if (type != nullptr && type->display == Display::none) opened.isHidden = true;
        if (opened.isHidden) {
            warnAboutSheet(opened);
        } else {
            show(opened, type);
        }
        if (tag.isClosed) close();
        return true;
    }

    void show(OpenElement& opened, ElementType const* type) {
        if (type == nullptr) warnAboutUnknown(opened);
        if (opened.isInLink && opened.element.name == "a") {
            warn(problems, opened.offset, "'a' is inside of another 'a', which HTML forbids");
        }
        decodeAttributes(opened);
        handler.startElement(opened.element);
        if (opened.element.name == "img") showInstead(opened);
    }

    void showInstead(OpenElement const& image) {
        auto const alt = std::ranges::find(image.attributes, "alt", &Attribute::name);
        if (alt == image.attributes.end()) {
            warn(problems, image.offset, "nothing is shown of 'img' without 'alt'");
        } else if (!alt->value.empty()) {
            handler.text(alt->value);
        }
    }

    void warnAboutUnknown(OpenElement const& opened) {
        if (!unknownNames.insert(opened.element.name).second) return;
        std::string_view const name = opened.element.name;
        warn(problems, opened.offset,
             isOfHtmlOnly(name) ? "element " + quoted(name) + " is not supported"
                                : "unknown element " + quoted(name) +
                                      suggestion(name, vocabulary(), &ElementType::name));
    }

    void warnAboutSheet(OpenElement const& opened) {
        if (opened.element.name != "link") return;
        for (Attribute const& attribute : opened.attributes) {
            if (attribute.name != "rel" || attribute.value != "stylesheet") continue;
            warn(problems, opened.offset,
                 "a linked sheet is not read; pass it beside the document");
        }
    }

    void decodeAttributes(OpenElement& opened) {
        std::size_t length = 0;
        for (Attribute const& attribute : opened.attributes) {
            utf8.check(attribute.value, attribute.valueOffset);
            if (isEncodedValue(attribute.value)) length += attribute.value.size();
        }
        // Decoded values are not longer, and have to stay where they are.
        if (length > 0) opened.decoded.reserve(length);
        for (Attribute& attribute : opened.attributes) {
            if (!isEncodedValue(attribute.value)) continue;
            std::size_t const start = opened.decoded.size();
            decodeValue(attribute.value, attribute.valueOffset, opened.decoded, problems);
            attribute.value = std::string_view(opened.decoded).substr(start);
        }
    }

    bool endElement(Piece const& tag) {
        handOverText();
        if (open.size() == 0) {
            return fail(problems, tag.offset,
                        "End tag </" + shortened(tag.name) + "> closes no element");
        }
        OpenElement const& innermost = open.innermost();
        if (tag.name == innermost.element.name) {
            close();
            return true;
        }
        return failUnclosed(tag.offset, "End tag </" + shortened(tag.name) +
                                            "> does not match start tag <" +
                                            shortened(innermost.element.name) + ">");
    }

    void close() {
        if (!open.innermost().isHidden) handler.endElement(open.innermost().element);
        open.pop();
    }

    bool endDocument() {
        handOverText();
        if (open.size() == 0) return true;
        std::size_t end = source.size();
        while (isWhiteSpace(source[end - 1])) --end;
        return failUnclosed(end, "Missing end tag at the end");
    }

    /// The innermost element has no end. If it is one that never has content, its start tag is the
    /// fault; what looks like its content are the elements behind it.
    bool failUnclosed(std::size_t offset, std::string message) {
        std::size_t i = open.size() - 1;
        while (i > 0 && isVoid(open[i].element.name) && isVoid(open[i - 1].element.name)) --i;
        std::string const name = shortened(open[i].element.name);
        if (isVoid(open[i].element.name)) {
            return fail(problems, open[i].offset,
                        "Missing end of <" + name + ">; write <" + name + "/>");
        }
        fail(problems, offset, std::move(message));
        problems.push_back(
            {Problem::Kind::note, open[i].offset, "Start tag <" + name + "> is here"});
        return false;
    }

    std::string_view source;
    DocumentHandler& handler;
    std::vector<Problem>& problems;
    Scanner scanner;
    Utf8Check utf8;
    TextRun run;
    OpenElements open;
    /// Start tags so far.
    std::size_t count = 0;
    /// Of elements by their number; empty where nobody asks.
    std::vector<bool> isLast;
    Suggester suggestion;
    /// Those of which there has been a warning.
    std::unordered_set<std::string_view> unknownNames;
};

}  // namespace

bool readDocument(std::string_view markup, DocumentHandler& handler,
                  std::vector<Problem>& problems) {
    if (!checkEncoding(markup, problems)) return false;
    readSheets(markup, handler, problems);
    return DocumentReader(markup, handler, problems).read();
}

}  // namespace galley::web
