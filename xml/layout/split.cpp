// How a line, or an inline element on it, is broken where it exceeds the width.

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "base/saturate.h"
#include "xml/css/getNodeStyle.h"
#include "xml/dom/DomElement.h"
#include "xml/layout/layOut.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

namespace {

using Boxes = ZRVector<ZRLWPtr<Box>>;

/// A box on the way down to the break, and its first child that does not fit.
struct Level {
    Box* box;
    unsigned unfitting;
    /// What that child is offered, in columns.
    std::int32_t room;
    /// It shows nothing that the boxes around do not, and nobody sees it.
    bool isRepeated;
    /// Of the children before that one, and of that one before anything is moved off it, with
    /// their edges in columns, where they are measured.
    ///@{
    std::int64_t fitting = 0;
    std::int64_t exceeding = 0;
    ///@}
};

/// What has been moved off a box.
struct Rest {
    Boxes boxes;
    /// One of them, as told by `Box::hasSpecialChild`.
    bool isSpecial = false;
    /// Whether they are, and stay, measured, and then the width of all of them with their edges, in
    /// columns.
    ///@{
    bool isMeasured = false;
    std::int64_t width = 0;
    ///@}
};

/// Levels that few breaks go deeper than.
constexpr std::size_t s_usualDepth = 16;

/// The inline elements without style around a box, inside the innermost one with style. Such an
/// element shows only in its name; those that look alike are the same one.
class PlainElements {
public:
    /// Whether the element was there already.
    bool add(DomNode const* element) {
        auto const end = elements.begin() + count;
        if (std::find(elements.begin(), end, element) != end) return true;
        if (end != elements.end()) elements[count++] = element;
        return false;
    }
    void clear() { count = 0; }

private:
    /// As many as there are names of inline elements.
    std::array<DomNode const*, 5> elements{};
    unsigned count = 0;
};

/// Whether two elements have the same value, or none, of a property.
bool areAlikeIn(StyleProperty const& property, DomElement const& one, DomElement const& other) {
    String const* const value = findStyle(&one, property);
    String const* const otherValue = findStyle(&other, property);
    if (value == nullptr || otherValue == nullptr) return value == otherValue;
    return value->view() == otherValue->view();
}

/// Whether the text in `inner`, an element in `outer`, looks like that in `outer`, and nothing
/// shows behind it.
bool looksLike(DomElement const& inner, DomElement const& outer) {
    return inner.name.view() == outer.name.view() && areAlikeIn(Property::s_color, inner, outer) &&
           areAlikeIn(Property::s_fontStyle, inner, outer) &&
           findStyle(&inner, Property::s_backgroundColor) == nullptr;
}

/// Whether a box shows nothing that `around`, the element of its parent, and the plain elements
/// around that do not show.
bool isRepeated(Box const& box, DomElement const* around, PlainElements& plain) {
    if (!box.isUnseen || box.type != Box::Inline) return false;
    if (!hasStyle(box.node)) return plain.add(box.node);
    plain.clear();
    return around != nullptr && !box.dimensions.hasEdges() &&
           looksLike(*asElement(box.node), *around);
}

std::int64_t outerWidth(Box const& box) { return box.dimensions.marginBox().width; }

void measureUpTo(Level& level) {
    Boxes const& children = level.box->children;
    for (unsigned i = 0; i < level.unfitting; ++i) level.fitting += outerWidth(*children[i]);
    level.exceeding = outerWidth(*children[level.unfitting]);
}

bool isBreakable(Box const& box) { return box.type != Box::Block && box.type != Box::Table; }

/// The boxes that the break goes through, outermost first: each is the child that does not fit of
/// the one before. What counts are content widths of the last layout, not edges.
std::vector<Level> findBreak(Box& outermost, std::int64_t room, bool isMeasured) {
    std::vector<Level> path;
    path.reserve(s_usualDepth);
    PlainElements plain;
    Box* box = &outermost;
    do {
        Boxes const& children = box->children;
        unsigned i = 0;
        while (i < children.count && children[i]->dimensions.content.width <= room) {
            room -= children[i]->dimensions.content.width;
            ++i;
        }
        if (i == children.count) break;
        room = saturate(room);
        DomElement const* const around = path.empty() ? nullptr : asElement(path.back().box->node);
        path.push_back({box, i, static_cast<std::int32_t>(room), isRepeated(*box, around, plain)});
        if (isMeasured) measureUpTo(path.back());
        box = children[i].object;
    } while (isBreakable(*box) && !isForeign(*box));
    return path;
}

/// Moves what stands behind the break off the box of `level` to the end of `rest`. That holds what
/// was moved off the child that does not fit; where nothing was, that child moves itself, unless
/// it is the first: it stays although it does not fit, so that every break moves something on and
/// breaking ends.
void moveRest(Level const& level, Rest& rest) {
    Box& box = *level.box;
    bool const staysInPart = rest.boxes.count > 0 || level.unfitting == 0;
    unsigned const firstMoved = staysInPart ? level.unfitting + 1 : level.unfitting;
    bool const movesAny = firstMoved < box.children.count;
    if (rest.boxes.count == 0 && !movesAny) return;
    if (movesAny) {
        box.children.moveTailTo(firstMoved, rest.boxes);
        rest.isSpecial = rest.isSpecial || box.hasSpecialChild;
    }
    if (rest.isMeasured) {
        rest.width += box.dimensions.content.width - level.fitting;
        if (staysInPart) rest.width -= level.exceeding;
    }
    box.isMeasured = false;
    box.isSettled = false;
}

/// A clone of a box with what was moved off it.
ZRLWPtr<Box> wrap(Rest& rest, Box& box) {
    ZRLWPtr<Box> clone = box.clone();
    clone->children = std::move(rest.boxes);
    clone->hasSpecialChild = rest.isSpecial;
    clone->holdsBlock = box.holdsBlock;
    clone->decisiveWidth = box.decisiveWidth;
    if (rest.isMeasured && isModerate(rest.width)) {
        clone->isMeasured = true;
        clone->mayShrink = box.mayShrink;
        clone->dimensions.content.width = static_cast<std::int32_t>(rest.width);
    }
    return clone;
}

/// Puts the box that was moved off one inside the next one around into `rest`.
void begin(Rest& rest, ZRLWPtr<Box> part) {
    rest.isSpecial = hasStyle(part->node) && part->dimensions.hasEdges();
    if (rest.isMeasured) {
        rest.width = outerWidth(*part);
        rest.isMeasured = part->isMeasured && isModerate(rest.width);
    }
    rest.boxes = Boxes();
    rest.boxes.add(std::move(part));
}

/// Where elements repeat those around them, what is moved off them goes straight into those, if
/// it is as wide there as the element is: otherwise each of many lines within many elements would
/// have a box for each of them.
ZRLWPtr<Box> splitBox(Box& box, int width, bool isMeasured) {
    std::vector<Level> const path = findBreak(box, width, isMeasured);
    if (path.empty()) return {};
    Rest rest;
    rest.isMeasured = isMeasured;
    Level const& last = path.back();
    Box& unfitting = *last.box->children[last.unfitting];
    if (isForeign(unfitting)) {
        if (ZRLWPtr<Box> part = unfitting.split(last.room)) begin(rest, std::move(part));
    }
    for (std::size_t depth = path.size(); depth-- > 1;) {
        Level const& level = path[depth];
        moveRest(level, rest);
        bool const isNeeded = !level.isRepeated || rest.isSpecial;
        if (rest.boxes.count > 0 && isNeeded) begin(rest, wrap(rest, *level.box));
    }
    moveRest(path[0], rest);
    return rest.boxes.count > 0 ? wrap(rest, box) : nullptr;
}

}  // namespace

ZRLWPtr<Box> LineBox::split(int width) { return splitBox(*this, width, false); }
ZRLWPtr<Box> InlineBox::split(int width) { return splitBox(*this, width, false); }
ZRLWPtr<Box> splitMeasured(Box& box, int width) { return splitBox(box, width, true); }

}  // namespace CLI::XML
