#include "web/text/Cluster.h"

#include <utf8proc.h>

#include <cstdint>
#include <functional>

#include "web/text/utf8.h"

namespace galley::web {

namespace {

constexpr char32_t s_textStyle = 0xFE0E;
constexpr char32_t s_emojiStyle = 0xFE0F;

utf8proc_property_t const& unicode(char32_t codePoint) {
    return *utf8proc_get_property(static_cast<std::int32_t>(codePoint));
}

/// Is printed as a blank: a separator of lines, or a space that lets none break.
bool isBlank(char32_t c) {
    return c == 0x2028 || c == 0x2029 || c == 0xA0 || c == 0x2007 || c == 0x202F;
}

/// What stands for a character where clusters begin and end: what is printed for it, so that these
/// are as wide on the page. The end of a line stays, since both its characters are one.
char32_t standIn(char32_t c) {
    if (c == '\r' || c == '\n') return c;
    if (isControl(c)) return s_replacementCharacter;
    return isBlank(c) ? U' ' : c;
}

bool isMark(utf8proc_property_t const& properties) {
    return properties.category >= UTF8PROC_CATEGORY_MN &&
           properties.category <= UTF8PROC_CATEGORY_ME;
}

/// Of a cluster's first code point: nothing of it is printed.
bool isInvisible(utf8proc_property_t const& properties) {
    if (properties.boundclass == UTF8PROC_BOUNDCLASS_CONTROL) return true;
    bool const isFormat = properties.category == UTF8PROC_CATEGORY_CF &&
                          properties.boundclass != UTF8PROC_BOUNDCLASS_PREPEND;
    return isMark(properties) || isFormat;
}

/// Behind a base: has a cell of its own, in which case the cluster has two. Halfwidth sound marks
/// and some vowels are letters.
bool takesRoom(char32_t c, utf8proc_property_t const& properties) {
    bool const follows = properties.boundclass == UTF8PROC_BOUNDCLASS_EXTEND ||
                         properties.boundclass == UTF8PROC_BOUNDCLASS_SPACINGMARK;
    bool const isLetter =
        properties.category == UTF8PROC_CATEGORY_LM || properties.category == UTF8PROC_CATEGORY_LO;
    bool const isModifier = c >= 0x1F3FB && c <= 0x1F3FF;
    return properties.category == UTF8PROC_CATEGORY_MC || (follows && isLetter) || isModifier;
}

/// A code point, and what utf8proc knows of it.
struct Character {
    explicit Character(CodePoint c)
        : original(c.value),
          value(standIn(original)),
          length(c.length),
          properties(unicode(value)) {}

    char32_t original;
    /// What stands for it.
    char32_t value;
    unsigned length;
    std::reference_wrapper<utf8proc_property_t const> properties;

    auto kind() const { return properties.get().boundclass; }
};

/// Whether a cluster ends between two code points of it, the state being 0 at its beginning. A
/// blank is one of its own, behind a prefix, too: lines break there, and terminals show it so.
bool isBoundary(Character const& before, Character const& behind, std::int32_t& state) {
    bool const isApart = behind.value == U' ' || (behind.kind() == UTF8PROC_BOUNDCLASS_OTHER &&
                                                  before.kind() != UTF8PROC_BOUNDCLASS_PREPEND);
    return isApart ||
           utf8proc_grapheme_break_stateful(static_cast<std::int32_t>(before.value),
                                            static_cast<std::int32_t>(behind.value), &state);
}

/// The width of a cluster, which takes its code points one after the other.
class Width {
public:
    explicit Width(bool isAmbiguousWide) : ambiguousIsWide(isAmbiguousWide) {}

    /// What is only a prefix is followed by the base.
    void take(Character const& c, Properties properties) {
        hasBase = c.kind() != UTF8PROC_BOUNDCLASS_PREPEND;
        takesEmojiStyle = properties.takesEmojiStyle;
        isWide |= properties.width == EastAsianWidth::wide ||
                  (ambiguousIsWide && properties.width == EastAsianWidth::ambiguous) ||
                  c.kind() == UTF8PROC_BOUNDCLASS_REGIONAL_INDICATOR;
    }

    void take(Character const& c) {
        if (!hasBase) return take(c, propertiesOf(c.value));
        isWide |= (c.value == s_emojiStyle && takesEmojiStyle) || takesRoom(c.value, c.properties);
        takesEmojiStyle = false;
    }

    unsigned cells() const { return isWide ? 2 : 1; }

private:
    bool ambiguousIsWide;
    bool hasBase = false;
    /// U+FE0F would follow the base directly.
    bool takesEmojiStyle = false;
    bool isWide = false;
};

/// A character of one cell and no more, since what follows is neither a mark nor a line feed.
bool isPlainAt(std::string_view text, std::size_t at) {
    return text[at] >= ' ' && text[at] <= '~' && (at + 1 == text.size() || isAscii(text[at + 1]));
}

void appendOne(std::string& out, CodePoint c, std::string_view bytes) {
    if (!c.isWellFormed || isControl(c.value)) {
        out += "\uFFFD";
    } else if (isBlank(c.value)) {
        out += ' ';
    } else {
        out += bytes;
    }
}

void appendCluster(std::string& out, std::string_view cluster) {
    bool isBehindWide = false;
    for (std::size_t i = 0; i < cluster.size();) {
        CodePoint const c = decodeAt(cluster, i);
        bool const isDropped = c.value == s_textStyle && isBehindWide;
        if (!isDropped) appendOne(out, c, cluster.substr(i, c.length));
        if (c.value == '\r') return;
        isBehindWide = propertiesOf(c.value).width == EastAsianWidth::wide;
        i += c.length;
    }
}

}  // namespace

Cluster clusterAt(std::string_view text, std::size_t at, bool isAmbiguousWide) {
    if (isPlainAt(text, at)) {
        auto const c = static_cast<unsigned char>(text[at]);
        return {at, at + 1, 1, true, c, 1, propertiesOf(c)};
    }
    Character last(decodeAt(text, at));
    char32_t const shown = isControl(last.original) ? s_replacementCharacter : last.original;
    bool const isPrinted = !isInvisible(last.properties);
    Cluster cluster = {at, at + last.length, 0, false, shown, last.length, propertiesOf(shown)};
    Width width(isAmbiguousWide);
    width.take(last, cluster.properties);
    std::int32_t state = 0;
    while (cluster.end < text.size()) {
        Character const next(decodeAt(text, cluster.end));
        if (isBoundary(last, next, state)) break;
        width.take(next);
        cluster.end += next.length;
        last = next;
    }
    if (!isPrinted) return cluster;
    cluster.width = width.cells();
    cluster.isPrintedAsIs = cluster.end == at + cluster.firstLength &&
                            shown != s_replacementCharacter && !isBlank(shown);
    return cluster;
}

int countCells(std::string_view text, bool isAmbiguousWide) {
    int cells = 0;
    for (std::size_t i = 0; i < text.size();) {
        Cluster const cluster = clusterAt(text, i, isAmbiguousWide);
        cells += static_cast<int>(cluster.width);
        i = cluster.end;
    }
    return cells;
}

void appendPrinted(std::string& out, std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        std::size_t plain = i;
        while (plain < text.size() && isPlainAt(text, plain)) ++plain;
        out += text.substr(i, plain - i);
        if (plain == text.size()) return;
        Cluster const cluster = clusterAt(text, plain, false);
        if (cluster.width > 0) appendCluster(out, text.substr(plain, cluster.end - plain));
        i = cluster.end;
    }
}

}  // namespace galley::web
