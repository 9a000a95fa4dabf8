#include "xml/beneath.h"

namespace CLI::XML {

void leaveBox(Grid& grid, DomNode const* node, Dimensions const& box, Look const& look,
              Canvas::Attributes const& attributes) {
    if (!box.hasBorder() && !look.hasBackground()) return grid.leave();
    grid.leaveAndCover();
    Canvas::Attributes const ofBackground = look.ofBackground(attributes);
    if (look.hasBackground()) {
        Rect const area = box.borderBox();
        grid.draw(" ", area.width, area.x, area.y, area.height, ofBackground);
    }
    Canvas::Attributes const ofBorder = look.ofBorder(ofBackground);
    drawBorder(node, box, [&](std::string_view text, int times, int x, int y, int height) {
        grid.draw(text, times, x, y, height, ofBorder);
    });
    grid.uncover();
}

}  // namespace CLI::XML
