#include "web/flow/scanText.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>

#include "web/text/Cluster.h"
#include "web/text/ideographs.h"

namespace galley::web {

namespace {

using Kind = Item::Kind;

constexpr int s_unlimited = std::numeric_limits<int>::max();
constexpr char32_t s_softHyphen = 0xAD;

/// Goes through a text up to where there is no more room.
class Scan {
public:
    Scan(Paragraph const& scanned, TextBreaker& breaker, Place from, int cells, Parting how)
        : paragraph(scanned), texts(breaker), begin(from), at(from), room(cells), parting(how) {}

    TextPart run() {
        while (texts.goesOn(begin, at)) {
            if (takeItem()) return found;
        }
        finish({.end = at, .width = used, .hyphenates = paragraph.items()[at.item - 1].hyphenates});
        return found;
    }

private:
    /// Goes on, at least behind one cluster. Returns whether the part ends.
    bool takeItem() {
        Item const& item = paragraph.items()[at.item];
        if (item.kind == Kind::blank || item.kind == Kind::blanks) {
            return takeBlanks({at.item + 1, 0}, static_cast<int>(item.width));
        }
        if (item.kind == Kind::breakable) {
            at = {at.item + 1, 0};
            return offer(false);
        }
        std::string_view const text = paragraph.textOf(item).substr(at.offset);
        if (item.kind == Kind::ideographs) return takeIdeographs(text);
        if (parting == Parting::anywhere) {
            return item.isPlain ? takeLetters(text) : takeCluster(text);
        }
        return item.kind == Kind::words ? takeWords(text) : takeWord(item);
    }

    bool takeWords(std::string_view words) {
        auto const length = static_cast<int>(words.size());
        std::size_t blank = words.size() - 1;
        if (overflows) {
            blank = words.find(' ');
        } else if (used + length > room) {
            blank = words.rfind(' ', static_cast<std::size_t>(room - used));
            if (blank == std::string_view::npos) return overflow();
        }
        at.offset += static_cast<std::uint32_t>(blank);
        used += static_cast<int>(blank);
        bool const endsHere =
            at != begin && (overflows || used + 1 > room || blank + 1 < words.size());
        if (endsHere) return finish({.end = at, .width = used, .mayEndLine = true});
        return takeBlanks(paragraph.behind(at, 1), 1);
    }

    bool takeWord(Item const& item) {
        int const left = room - used;
        bool const isWhole = at.offset == 0;
        int const width = isWhole ? static_cast<int>(item.width)
                                  : widthFrom(paragraph, at, overflows ? s_unlimited : left);
        if (!overflows && width > left) return overflow();
        used += width;
        Place const from = std::exchange(at, {at.item + 1, 0});
        return item.mayBreakBehind && texts.mayBreakBehindRest(from, at) && offer(item.hyphenates);
    }

    bool takeIdeographs(std::string_view text) {
        std::size_t const count = text.size() / s_ideographBytes;
        auto const fit = static_cast<std::size_t>(std::max(0, room - used) / s_ideographCells);
        std::size_t taken = overflows ? 1 : std::min(count, fit);
        if (parting != Parting::anywhere) {
            auto const breaks = [text, count](std::size_t place) {
                std::size_t const byte = place * s_ideographBytes;
                return place == count || breaksBetween(ideographAt(text, byte - s_ideographBytes),
                                                       ideographAt(text, byte));
            };
            while (taken > 0 && !breaks(taken)) taken = overflows ? taken + 1 : taken - 1;
        }
        if (taken == 0) return overflow();
        used += static_cast<int>(taken) * s_ideographCells;
        at = paragraph.behind(at, taken * s_ideographBytes);
        return offer(false) || (taken < count && overflow());
    }

    bool takeCluster(std::string_view text) {
        Cluster const cluster = clusterAt(text, 0, paragraph.isAmbiguousWide());
        Place const behind = paragraph.behind(at, cluster.end);
        if (text.front() == ' ') return takeBlanks(behind, 1);
        auto const width = static_cast<int>(cluster.width);
        if (!overflows && used + width > room) return overflow();
        used += width;
        at = behind;
        return offer(cluster.first == s_softHyphen);
    }

    /// Those that there is room for, of text in which each byte is a cluster of one cell.
    bool takeLetters(std::string_view text) {
        if (text.front() == ' ') return takeBlanks(paragraph.behind(at, 1), 1);
        auto const fit = static_cast<std::size_t>(overflows ? 1 : std::max(0, room - used));
        std::string_view const fitting = text.substr(0, fit);
        std::size_t const taken = std::min(fitting.find(' '), fitting.size());
        if (taken == 0) return overflow();
        used += static_cast<int>(taken);
        at = paragraph.behind(at, taken);
        return offer(false);
    }

    /// White space before which a line may end, or behind it if the part would be empty.
    bool takeBlanks(Place behind, int cells) {
        bool const isFirst = at == begin;
        TextPart const part = {.end = isFirst ? behind : at,
                               .width = isFirst ? cells : used,
                               .mayEndLine = true,
                               .hangs = isFirst && cells > room};
        if (overflows || used + cells > room) return finish(part);
        best = part;
        used += cells;
        at = behind;
        return false;
    }

    /// A line may end here.
    bool offer(bool hyphenates) {
        TextPart const part = {
            .end = at, .width = used, .hyphenates = hyphenates, .mayEndLine = true};
        if (overflows) return finish(part);
        best = part;
        return false;
    }

    /// What is next has no room: the part ends at the last opportunity, or goes on to the next.
    bool overflow() {
        if (best) return finish(*best);
        overflows = true;
        return parting == Parting::fittingOpportunities && finish({.end = begin});
    }

    bool finish(TextPart const& part) {
        found = part;
        found.isLeast = overflows;
        return true;
    }

    Paragraph const& paragraph;
    TextBreaker& texts;
    Place begin;
    Place at;
    int room;
    Parting parting;
    int used = 0;
    bool overflows = false;
    std::optional<TextPart> best;
    TextPart found;
};

}  // namespace

int widthFrom(Paragraph const& paragraph, Place place, int most) {
    Item const& item = paragraph.items()[place.item];
    std::string_view const text = paragraph.textOf(item).substr(place.offset);
    if (item.kind == Kind::ideographs) return cellsOfIdeographs(text);
    if (item.isPlain) return static_cast<int>(text.size());
    int width = 0;
    for (std::size_t i = 0; i < text.size() && width <= most;) {
        Cluster const cluster = clusterAt(text, i, paragraph.isAmbiguousWide());
        width += static_cast<int>(cluster.width);
        i = cluster.end;
    }
    return width;
}

TextPart scanText(Paragraph const& paragraph, TextBreaker& texts, Place begin, int room,
                  Parting parting) {
    return Scan(paragraph, texts, begin, room, parting).run();
}

}  // namespace galley::web
