// How boxes paint themselves: background, border, then content over both, each on a canvas of its
// own.

#include <algorithm>

#include "xml/beneath.h"
#include "xml/dom/nodes.h"
#include "xml/layout/layOut.h"
#include "xml/render/Look.h"

namespace CLI::XML {

namespace {

using Attributes = Canvas::Attributes;

/// Draws `text` repeated `times` times in `height` rows from (x, y) down.
void drawStrips(Canvas& canvas, std::string_view text, int times, int x, int y, int height,
                Attributes const& attributes) {
    if (times <= 0 || text.empty()) return;
    // Repetitions that lie left of the canvas are not made.
    auto const length = static_cast<std::int64_t>(text.length());
    std::int64_t const clipped = std::clamp<std::int64_t>(-std::int64_t{x} / length, 0, times - 1);
    auto const left = static_cast<int>(x + clipped * length);
    String const once(text.data(), 0, static_cast<int>(length));
    String const strip = String::repeat(once, static_cast<unsigned>(times - clipped));
    std::int64_t const end = std::int64_t{y} + height;
    for (std::int64_t row = std::max(y, 0); row < end; ++row) {
        canvas.drawClipped(strip.view(), left, static_cast<int>(row), attributes);
    }
}

Walk drawBox(Box& box, Canvas& canvas, Attributes handedDown);

/// As a virtual call of `drawTo` does.
Walk drawChild(Box& box, Canvas& canvas, Attributes attributes) {
    bool const isInline = paintsAsInline(box);
    if (isForeign(box) || (isInline && box.children.count == 0)) {
        box.drawTo(canvas, attributes);
        return {};
    }
    if (isInline) attributes.flags |= flagOfElement(box.node);
    return drawBox(box, canvas, attributes);
}

Walk drawBox(Box& box, Canvas& canvas, Attributes handedDown) {
    Canvas content;
    Attributes attributes = handedDown;
    box.drawBackgroundTo(canvas, attributes);
    box.drawBorderTo(canvas, attributes);
    box.applyContentAttributes(attributes);
    for (ZRLWPtr<Box> const& child : box.children) {
        co_await drawChild(*child, content, attributes);
    }
    canvas.drawClipped(content, box.dimensions.content.x, box.dimensions.content.y);
}

}  // namespace

void Box::drawTo(Canvas& canvas, Attributes const& attributes) {
    Walk::run(drawBox(*this, canvas, attributes));
}

void InlineBox::drawTo(Canvas& canvas, Attributes const& attributes) {
    if (children.count > 0) {
        Attributes flagged = attributes;
        flagged.flags |= flagOfElement(node);
        Box::drawTo(canvas, flagged);
    } else if (DomText const* const word = asText(node)) {
        Rect const& content = dimensions.content;
        canvas.drawClipped(word->text.view(), content.x, content.y, attributes);
    }
}

void Box::drawBackgroundTo(Canvas& canvas, Attributes& attributes) {
    Look const look(node);
    if (!look.hasBackground()) return;
    attributes = look.ofBackground(attributes);
    Rect const area = dimensions.borderBox();
    drawStrips(canvas, " ", area.width, area.x, area.y, area.height, attributes);
}

void Box::drawBorderTo(Canvas& canvas, Attributes attributes) {
    attributes = Look(node).ofBorder(attributes);
    drawBorder(node, dimensions, [&](std::string_view text, int times, int x, int y, int height) {
        drawStrips(canvas, text, times, x, y, height, attributes);
    });
}

void Box::applyContentAttributes(Attributes& attributes) {
    attributes = Look(node).ofContent(attributes);
}

}  // namespace CLI::XML
