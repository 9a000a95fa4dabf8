#include "web/css/computeStyle.h"

#include <algorithm>
#include <iterator>

namespace galley::web {

namespace {

/// Of parents' weights below `end`.
struct Step {
    unsigned end = 0;
    FontWeight lighter;
    FontWeight bolder;
};

/// The chart of CSS Fonts Level 4. From 900 on nothing is bolder, and below 100 nothing lighter.
constexpr Step s_steps[] = {
    {350, {100}, {400}},
    {550, {100}, {700}},
    {750, {400}, {900}},
    {1001, {700}, {900}},
};

FontWeight computedWeight(FontWeight declared, FontWeight parent) {
    bool const isLighter = declared == FontWeight::lighter();
    if (!isLighter && declared != FontWeight::bolder()) return declared;
    if (parent.value < 100 && isLighter) return parent;
    if (parent.value >= 900 && !isLighter) return parent;
    auto const* const step =
        std::find_if(std::begin(s_steps), std::end(s_steps),
                     [parent](Step const& row) { return parent.value < row.end; });
    return isLighter ? step->lighter : step->bolder;
}

void replaceCurrent(Colour& colour, Colour const& current) {
    if (!colour.isCurrent) return;
    colour = current;
    colour.isCurrent = true;
}

/// Replaces what depends on other properties, or on the parent's.
void resolve(Style& style, Style const& parent) {
    style.fontWeight = computedWeight(style.fontWeight, parent.fontWeight);
    if (style.colour.isCurrent) style.colour = parent.colour;
    replaceCurrent(style.background, style.colour);
    Edges<Border>& border = style.border;
    for (Border* const side : {&border.left, &border.right, &border.top, &border.bottom}) {
        replaceCurrent(side->colour, style.colour);
        side->cells = style.cells;
    }
    if (style.display == Display::table || style.display == Display::cell) style.wrapsAsCell = true;
    style.drawn.isUnderlined |= style.decoration.isUnderlined;
    style.drawn.isStruckThrough |= style.decoration.isStruckThrough;
}

}  // namespace

Style computeStyle(Style const& parent, std::span<Declarations const* const> declared) {
    Style style;
    InheritedStyle const& inherited = parent;
    static_cast<InheritedStyle&>(style) = inherited;
    for (Declarations const* const declarations : declared) declarations->applyTo(style, parent);
    resolve(style, parent);
    return style;
}

}  // namespace galley::web
