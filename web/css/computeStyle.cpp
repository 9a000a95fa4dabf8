#include "web/css/computeStyle.h"

namespace galley::web {

namespace {

FontWeight computedWeight(FontWeight declared, FontWeight parent) {
    switch (declared) {
        case FontWeight::lighter:
            return parent == FontWeight::bold ? FontWeight::normal : FontWeight::faint;
        case FontWeight::bolder:
            return parent == FontWeight::faint ? FontWeight::normal : FontWeight::bold;
        default:
            return declared;
    }
}

void replaceCurrent(Colour& colour, Colour const& current) {
    if (colour.kind == Colour::Kind::current) colour = current;
}

void computeBorder(Border& border, Colour const& current) {
    bool const isDrawn = border.line.kind != LineKind::none && border.line.kind != LineKind::hidden;
    if (!isDrawn) border.thickness = Thickness::none;
    replaceCurrent(border.colour, current);
}

/// Replaces what depends on other properties, or on the parent's.
void resolve(Style& style, Style const& parent) {
    style.fontWeight = computedWeight(style.fontWeight, parent.fontWeight);
    replaceCurrent(style.colour, parent.colour);
    replaceCurrent(style.background, style.colour);
    Edges<Border>& border = style.border;
    for (Border* const side : {&border.left, &border.right, &border.top, &border.bottom}) {
        computeBorder(*side, style.colour);
    }
    style.drawn.isUnderlined |= style.decoration.isUnderlined;
    style.drawn.isStruckThrough |= style.decoration.isStruckThrough;
}

}  // namespace

Style computeStyle(Style const& parent, std::span<Declarations const* const> declared) {
    Style style;
    static_cast<InheritedStyle&>(style) = parent;
    for (Declarations const* const declarations : declared) declarations->applyTo(style, parent);
    resolve(style, parent);
    return style;
}

}  // namespace galley::web
