#include "web/markup/readSheets.h"

#include <optional>

#include "web/css/characters.h"
#include "web/markup/Scanner.h"
#include "web/markup/Utf8Check.h"
#include "web/wording.h"

namespace galley::web {

namespace {

/// In these no `style` element means anything.
bool hidesSheets(std::string_view name) { return name == "script" || name == "template"; }

class SheetReader {
public:
    SheetReader(std::string_view markup, DocumentHandler& receiver, std::vector<Problem>& found)
        : source(markup),
          handler(receiver),
          problems(found),
          scanner(markup, ignored),
          utf8(markup, found) {}

    void read() {
        Piece piece;
        while (isSheetAhead() && scanner.next(piece)) {
            if (piece.kind == Piece::Kind::endOfDocument) return;
            if (piece.kind == Piece::Kind::startTag) {
                start(piece);
            } else if (piece.kind == Piece::Kind::endTag) {
                end();
            } else if (sheet && depth == sheetDepth) {
                utf8.check(piece.text, piece.offset);
                sheet->add(piece, problems);
            }
        }
    }

private:
    /// Asked again only where a sheet has been read.
    bool isSheetAhead() {
        if (sheet || scanner.position() < nextSheet) return true;
        nextSheet = source.find("<style", scanner.position());
        return nextSheet != std::string_view::npos;
    }

    void start(Piece const& tag) {
        if (tag.isClosed) return;
        ++depth;
        if (hiddenDepth == 0 && hidesSheets(tag.name)) hiddenDepth = depth;
        if (hiddenDepth > 0 || sheet || tag.name != "style" || !isCss(tag)) return;
        sheet.emplace(tag, problems);
        sheetDepth = depth;
    }

    /// Another language is passed over, as in a browser.
    bool isCss(Piece const& tag) {
        for (Attribute const& attribute : tag.attributes) {
            bool const isType = attribute.name == "type" && !attribute.value.empty();
            if (!isType || isSameWord(attribute.value, "text/css")) continue;
            warn(problems, attribute.valueOffset, "a sheet that is not CSS has no effect");
            return false;
        }
        return true;
    }

    void end() {
        if (sheet && depth == sheetDepth) {
            handler.styleSheet(*sheet);
            sheet.reset();
        }
        if (hiddenDepth == depth) hiddenDepth = 0;
        if (depth > 0) --depth;
    }

    std::string_view source;
    DocumentHandler& handler;
    std::vector<Problem>& problems;
    std::vector<Problem> ignored;
    Scanner scanner;
    Utf8Check utf8;
    std::size_t nextSheet = 0;
    /// Elements that are open.
    std::size_t depth = 0;
    /// Of the outermost open element that hides sheets; 0 without.
    std::size_t hiddenDepth = 0;
    std::optional<EmbeddedSheet> sheet;
    std::size_t sheetDepth = 0;
};

}  // namespace

void readSheets(std::string_view markup, DocumentHandler& handler, std::vector<Problem>& problems) {
    SheetReader(markup, handler, problems).read();
}

}  // namespace galley::web
