#pragma once

#include "xml/layout/Dimensions.h"
#include "xml/layout/ElementStyle.h"
#include "xml/render/Grid.h"
#include "xml/render/Look.h"

namespace CLI::XML {

/// Ends the frame of a box, whose size is known now, and draws background and border, if any,
/// beneath it. `attributes` are those handed down to the box, whose style is that of `node`.
void leaveBox(Grid& grid, DomNode const* node, Dimensions const& box, Look const& look,
              Canvas::Attributes const& attributes);

inline void leaveBox(Grid& grid, ElementStyle const& style, Dimensions const& box,
                     Canvas::Attributes const& attributes) {
    leaveBox(grid, style.element.object, box, style.look, attributes);
}

}  // namespace CLI::XML
