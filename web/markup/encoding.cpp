#include "web/markup/encoding.h"

#include "web/css/characters.h"
#include "web/text/utf8.h"
#include "web/wording.h"

namespace galley::web {

namespace {

using namespace std::string_view_literals;

/// By its mark, or by the first character of a document.
bool isUtf16(std::string_view markup) {
    for (std::string_view const start : {"\xFF\xFE"sv, "\xFE\xFF"sv, "<\0"sv, "\0<"sv}) {
        if (markup.starts_with(start)) return true;
    }
    return false;
}

/// What the XML declaration at the beginning says; empty without.
std::string_view declaredEncoding(std::string_view markup) {
    if (markup.starts_with(s_byteOrderMark)) markup.remove_prefix(s_byteOrderMark.size());
    if (!markup.starts_with("<?xml")) return {};
    std::string_view const declaration = markup.substr(0, markup.find("?>"));
    std::size_t const name = declaration.find("encoding");
    std::size_t const open = declaration.find_first_of("'\"", name);
    if (name == std::string_view::npos || open == std::string_view::npos) return {};
    std::size_t const close = declaration.find(declaration[open], open + 1);
    return declaration.substr(open + 1, close - open - 1);
}

}  // namespace

bool checkEncoding(std::string_view markup, std::vector<Problem>& problems) {
    if (isUtf16(markup)) {
        return fail(problems, 0, "Documents are UTF-8, which this one, as UTF-16, is not");
    }
    std::string_view const encoding = declaredEncoding(markup);
    bool const isKnown = encoding.empty() || isSameWord(encoding, "utf-8") ||
                         isSameWord(encoding, "utf8") || isSameWord(encoding, "us-ascii");
    if (!isKnown) {
        warn(problems, static_cast<std::size_t>(encoding.data() - markup.data()),
             "documents are UTF-8; encoding " + quoted(encoding) + " has no effect");
    }
    return true;
}

}  // namespace galley::web
