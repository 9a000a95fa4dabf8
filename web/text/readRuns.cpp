// Runs of a text in which lines break by a rule of their own, taken at once.

#include <utility>

#include "web/text/SegmentReader.h"
#include "web/text/asciiBreaks.h"
#include "web/text/ideographs.h"
#include "web/text/scanWord.h"
#include "web/text/whiteSpace.h"

namespace galley::web {

std::string_view SegmentReader::takeWords() {
    if (options.wordBreak == TextOptions::WordBreak::breakAll) return {};
    std::size_t end = scanWords(text, at);
    // A blank before other white space is part of that.
    bool const isBehindBlank = end > at && text[end - 1] == ' ';
    if (isBehindBlank && end < text.size() && isWhiteSpace(text[end])) --end;
    std::string_view words = text.substr(at, end - at);
    if (words.empty() || words.front() == ' ') return {};
    if (end < text.size()) words = words.substr(0, words.rfind(' ') + 1);
    at += words.size();
    return words;
}

std::string_view SegmentReader::takeIdeographs() {
    if (options.wordBreak == TextOptions::WordBreak::keepAll) return {};
    // What is behind the last one may belong to it, or stay with it, so that the run ends before.
    std::size_t end = at;
    std::size_t lastBreak = at;
    Ideograph last = Ideograph::none;
    for (;; end += s_ideographBytes) {
        Ideograph const kind = ideographAt(text, end);
        if (kind == Ideograph::none) break;
        if (breaksBetween(last, kind)) lastBreak = end;
        last = kind;
    }
    // But for these, which leave it alone.
    bool const isApart =
        end > at && end < text.size() && last != Ideograph::opening &&
        (isWhiteSpace(text[end]) || isAlphanumeric(static_cast<unsigned char>(text[end])));
    if (isApart) lastBreak = end;
    std::size_t const begin = std::exchange(at, lastBreak);
    return text.substr(begin, lastBreak - begin);
}

std::string_view SegmentReader::takeUnbroken() {
    std::size_t end = scanPrintable(text, at);
    bool const mayBeJoined = end < text.size() && !isWhiteSpace(text[end]);
    if (mayBeJoined && end > at) --end;
    std::size_t const begin = std::exchange(at, end);
    return text.substr(begin, end - begin);
}

}  // namespace galley::web
