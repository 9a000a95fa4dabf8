#include "web/text/LineBreaks.h"

#include <array>

#include "web/text/utf8.h"

namespace galley::web {

namespace {

using enum LineClass;

/// Classes, a bit each.
using Set = std::uint64_t;

template <class... Classes>
constexpr Set of(Classes... classes) {
    return (... | (Set{1} << static_cast<unsigned>(classes)));
}

constexpr bool isIn(LineClass one, Set classes) { return (of(one) & classes) != 0; }

constexpr std::size_t s_count = static_cast<std::size_t>(ZWJ) + 1;
constexpr Set s_all = (Set{1} << s_count) - 1;
/// What a line always breaks behind.
constexpr Set s_parting = of(BK, ZW);
constexpr Set s_any = s_all & ~s_parting;
constexpr Set s_anyButObject = s_any & ~of(CB);
constexpr Set s_letters = of(AL, HL);
constexpr Set s_hyphens = of(HH, HY);
constexpr Set s_pictures = of(ID, EB, EM);
constexpr Set s_hangul = of(JL, JV, JT, H2, H3);

struct Rule {
    Set before;
    Set behind;
};

/// What stays together whatever stands around it, in the order of the rules LB 6 to 29. What is one
/// cluster, as letters of a Hangul syllable are, is never asked about.
constexpr Rule s_together[] = {
    {s_all & ~of(BK), of(BK, ZW)},
    {s_any, of(WJ, GL)},
    {of(WJ, GL), s_all},
    {s_any, of(CL, CP, EX, SY, IS)},
    {of(OP), s_all},
    {of(CL, CP), of(NS)},
    {of(B2), of(B2)},
    {s_any, of(QU, PF)},
    {of(QU, PI), s_all},
    {s_anyButObject, of(BA, HH, HY, NS, IN)},
    {of(BB), s_anyButObject},
    {of(SY), of(HL)},
    {s_letters, s_letters | of(NU, PR, PO)},
    {of(NU), s_letters | of(NU)},
    {of(PR), s_pictures | s_hangul | s_letters | of(NU)},
    {s_pictures | s_hangul, of(PO)},
    {of(PO), s_letters | of(NU)},
    {of(HY), of(NU)},
    {of(IS), s_letters | of(NU)},
};

constexpr auto s_behind = [] {
    std::array<Set, s_count> sets = {};
    for (std::size_t i = 0; i < s_count; ++i) {
        for (Rule const& rule : s_together) {
            if ((rule.before >> i & 1) != 0) sets[i] |= rule.behind;
        }
    }
    return sets;
}();

/// The properties of what a text begins with, marks left out; of its end those of a letter.
Properties firstOf(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        CodePoint const c = decodeAt(text, i);
        Properties const properties = propertiesOf(c.value);
        if (!isIn(properties.lineClass, of(CM, ZWJ))) return properties;
        i += c.length;
    }
    return {};
}

bool startsNumber(std::string_view text) { return firstOf(text).lineClass == NU; }

}  // namespace

bool LineBreaks::mayBreakBefore(Properties next, std::string_view behind) const {
    if (isBehindJoiner) return false;
    if (isIn(next.lineClass, of(CM, ZWJ))) return isIn(last.lineClass, s_parting);
    if (isIn(next.lineClass, s_behind[static_cast<std::size_t>(last.lineClass)])) return false;
    return isIn(last.lineClass, s_parting) || parts(next, behind);
}

/// What a pair does not keep together, its surroundings may.
bool LineBreaks::parts(Properties next, std::string_view behind) const {
    LineClass const kind = next.lineClass;
    // A quotation mark parts only what is East Asian on both sides.
    if (kind == PI) return last.isEastAsian() && firstOf(behind).isEastAsian();
    if (last.lineClass == PF) return next.isEastAsian() && beforeLast.isEastAsian();
    if (isIn(last.lineClass, s_hyphens)) {
        bool const beginsWord = isIn(beforeLast.lineClass, of(SP, BK, ZW, CB, GL));
        if (beginsWord && isIn(kind, s_letters)) return false;
        if (beforeLast.lineClass == HL && kind != HL) return false;
    }
    if (number != Number::none && isIn(kind, of(PO, PR))) return false;
    if (number == Number::open && kind == NU) return false;
    if (isIn(last.lineClass, of(PO, PR)) && kind == OP && startsNumber(behind)) return false;
    constexpr Set words = s_letters | of(NU);
    if (isIn(last.lineClass, words) && kind == OP) return next.isEastAsian();
    if (last.lineClass == CP && isIn(kind, words)) return last.isEastAsian();
    return true;
}

void LineBreaks::take(Properties next) {
    bool const isAttached =
        isIn(next.lineClass, of(CM, ZWJ)) && !isIn(last.lineClass, s_parting | of(SP));
    isBehindJoiner = next.lineClass == ZWJ;
    if (isAttached) return;
    beforeLast = last;
    last = next;
    if (isIn(next.lineClass, of(CM, ZWJ))) last.lineClass = AL;
    if (next.lineClass == NU) {
        number = Number::open;
    } else if (number == Number::open && isIn(next.lineClass, of(CL, CP))) {
        number = Number::closed;
    } else if (number != Number::open || !isIn(next.lineClass, of(SY, IS))) {
        number = Number::none;
    }
}

bool mayBreakBehindFirst(std::string_view text, std::string_view behind) {
    if (text.empty() || behind.empty()) return true;
    CodePoint const c = decodeAt(text, 0);
    Properties const next = firstOf(behind);
    // As in Chromium, a letter stays with one that is not ASCII only.
    if (text == "-") return next.lineClass != NU;
    Properties const first = propertiesOf(c.value);
    return c.length < text.size() || first.lineClass != HH || !isIn(next.lineClass, s_letters);
}

}  // namespace galley::web
