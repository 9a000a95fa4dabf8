#pragma once

#include <string_view>

#include "base/saturate.h"
#include "xml/css/getNodeStyle.h"
#include "xml/layout/Dimensions.h"
#include "xml/layout/ElementStyle.h"
#include "xml/render/Grid.h"
#include "xml/render/Look.h"

namespace CLI::XML {

/// Draws the sides of a box that have a border width, in the order left, right, top, bottom,
/// corners, in the styles of `node`. `draw(text, times, x, y, height)` draws `text` so many times
/// from left to right in each of `height` rows from (x, y) down.
template <class Draw>
void drawBorder(DomNode const* node, Dimensions const& box, Draw const& draw) {
    Rect const area = box.borderBox();
    int const right = saturate(std::int64_t{area.x} + area.width - 1);
    int const bottom = saturate(std::int64_t{area.y} + area.height - 1);
    EdgeSizes const& border = box.border;
    auto const styleOf = [node](StyleProperty const& property) -> std::string_view {
        String const* const style = findStyle(node, property, Property::s_borderStyle);
        return style != nullptr ? style->view() : "*";
    };
    auto const drawSide = [&](int width, StyleProperty const& style, int x) {
        if (width > 0) draw(styleOf(style), 1, x, area.y, area.height);
    };
    auto const drawEnd = [&](int width, StyleProperty const& style, int y) {
        if (width > 0) draw(styleOf(style), area.width, area.x, y, 1);
    };
    drawSide(border.left, Property::s_borderLeftStyle, area.x);
    drawSide(border.right, Property::s_borderRightStyle, right);
    drawEnd(border.top, Property::s_borderTopStyle, area.y);
    drawEnd(border.bottom, Property::s_borderBottomStyle, bottom);

    String const* const corner = findStyle(node, Property::s_borderCornerStyle);
    if (corner == nullptr) return;
    auto const drawCorner = [&](int vertical, int horizontal, int x, int y) {
        if (vertical > 0 && horizontal > 0) draw(corner->view(), 1, x, y, 1);
    };
    drawCorner(border.top, border.left, area.x, area.y);
    drawCorner(border.top, border.right, right, area.y);
    drawCorner(border.bottom, border.left, area.x, bottom);
    drawCorner(border.bottom, border.right, right, bottom);
}

/// Ends the frame of a box, whose size is known now, and draws background and border, if any,
/// beneath it. `attributes` are those handed down to the box, whose style is that of `node`.
void leaveBox(Grid& grid, DomNode const* node, Dimensions const& box, Look const& look,
              Canvas::Attributes const& attributes);

inline void leaveBox(Grid& grid, ElementStyle const& style, Dimensions const& box,
                     Canvas::Attributes const& attributes) {
    leaveBox(grid, style.element.object, box, style.look, attributes);
}

}  // namespace CLI::XML
