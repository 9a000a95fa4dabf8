// How boxes paint themselves: background, border, then content over both.

#include <algorithm>
#include <utility>

#include "base/saturate.h"
#include "xml/css/getNodeStyle.h"
#include "xml/dom/DomElement.h"
#include "xml/layout/CellBox.h"
#include "xml/render/BoxPainting.h"
#include "xml/render/fontStyles.h"

namespace CLI::XML {

namespace {

using Attributes = Canvas::Attributes;

/// What any other value does.
constexpr FontStyle s_unknownFontStyle = {"", false, 0};

/// The flag that an inline element's name adds.
struct ElementFlag {
    std::string_view name;
    std::uint8_t flag;
};

constexpr ElementFlag s_elementFlags[] = {
    {"b", Attributes::Bold},   {"strong", Attributes::Inverse}, {"i", Attributes::Faint},
    {"em", Attributes::Faint}, {"mark", Attributes::Blink},
};

std::uint8_t flagOfElement(String const& name) {
    for (ElementFlag const& candidate : s_elementFlags) {
        if (name.view() == candidate.name) return candidate.flag;
    }
    return 0;
}

void applyFontStyle(String const& value, Attributes& attributes) {
    auto const* const found = std::find_if(
        std::begin(s_fontStyles), std::end(s_fontStyles),
        [&value](FontStyle const& candidate) { return value.view() == candidate.value; });
    FontStyle const& style = found != std::end(s_fontStyles) ? *found : s_unknownFontStyle;
    std::uint8_t const kept = style.keepsFlags ? attributes.flags : std::uint8_t{0};
    attributes.flags = static_cast<std::uint8_t>(kept | style.added);
}

/// Draws `text` in every row of `area` that the canvas can hold, beginning at column `x`.
void drawColumn(Canvas& canvas, String const& text, int x, Rect const& area,
                Attributes const& attributes) {
    canvas.drawDown(text.view(), x, area.y, area.height, attributes);
}

/// Draws `text` once for every column of `area` in its rows from `top` on, which are `height`.
void drawStrips(Canvas& canvas, String const& text, Rect const& area, int top, int height,
                Attributes const& attributes) {
    Rect const rows = {area.x, top, area.width, height};
    if (std::int64_t{top} + height <= 0 || area.width <= 0 || text.length() == 0) return;
    // Behind a NUL nothing shows.
    if (text.indexOf('\0') >= 0) return drawColumn(canvas, text, area.x, rows, attributes);
    std::int64_t const left = std::max<std::int64_t>(0, -std::int64_t{area.x});
    // Repetitions that would lie left of the canvas are not made.
    auto const clipped = std::min(left / text.length(), std::int64_t{area.width});
    std::int64_t const length = (area.width - clipped) * text.length();
    auto const x = static_cast<int>(area.x + clipped * text.length());
    if (!canvas.mayDraw(length + std::min(x, 0))) return;
    drawColumn(canvas, String::repeat(text, static_cast<unsigned>(area.width - clipped)), x, rows,
               attributes);
}

/// `attributes` with the flag that the name of an inline element adds.
Attributes withElementFlag(Box const& box, Attributes attributes) {
    bool const isInline = box.type == Box::Inline || box.type == Box::Cell;
    DomElement const* const element = isInline ? asElement(box.node) : nullptr;
    if (element != nullptr) {
        attributes.flags =
            static_cast<std::uint8_t>(attributes.flags | flagOfElement(element->name));
    }
    return attributes;
}

/// Whether a property is there and not empty.
bool isSet(String const* value) { return value != nullptr && value->length() > 0; }

/// Whether the box has a background colour, which it hands down.
bool applyBackground(Box const& box, Attributes& attributes) {
    String const* const value = findStyle(box.node, Property::s_backgroundColor);
    if (isSet(value)) attributes.background = Attributes::color(*value);
    return isSet(value);
}

void drawLeaf(Box const& box, Canvas& canvas, Attributes const& attributes) {
    Rect const& content = box.dimensions.content;
    canvas.drawClipped(shownText(box), content.x, content.y, attributes);
}

/// The words of a cell that took them from its only run.
std::string_view runOf(Box const& box) {
    return box.type == Box::Cell && box.isUnseen() ? static_cast<CellBox const&>(box).run()
                                                   : std::string_view();
}

bool isEmptyCell(Box const& box) {
    return box.type == Box::Cell && box.children.count == 0 && runOf(box).empty();
}

/// Draws the children without children from `first` on. Returns the index of the next one that is
/// not.
unsigned drawLeaves(BoxPainting const& painting, unsigned first) {
    ZRVector<ZRLWPtr<Box>> const& children = painting.painted().children;
    unsigned i = first;
    for (; i < children.count && isLeaf(*children.data[i]); ++i) {
        drawLeaf(*children.data[i], painting.canvas(), painting.attributes());
    }
    return i;
}

Walk drawTree(Box& box, Canvas& canvas, Attributes const& inherited);

/// Draws a child that is not a leaf.
Walk drawChild(BoxPainting const& painting, Box& child) {
    if (isEmptyCell(child) || child.isForeign()) {
        child.drawTo(painting.canvas(), painting.attributes());
        return {};
    }
    return drawTree(child, painting.canvas(), withElementFlag(child, painting.attributes()));
}

/// Draws the children from `next` on, which is not a leaf. There is one such call for each level of
/// a deep document, so that it keeps little.
Walk drawChildren(BoxPainting painting, unsigned next) {
    for (; next < painting.painted().children.count; next = drawLeaves(painting, next + 1)) {
        co_await drawChild(painting, *painting.painted().children.data[next]);
    }
    painting.finish();
}

Walk drawTree(Box& box, Canvas& canvas, Attributes const& inherited) {
    BoxPainting painting(box, canvas, inherited, BoxPainting::Complete);
    std::string_view const run = runOf(box);
    if (!run.empty()) painting.canvas().drawClipped(run, 0, 0, painting.attributes());
    unsigned const next = drawLeaves(painting, 0);
    if (next < box.children.count) return drawChildren(std::move(painting), next);
    painting.finish();
    return {};
}

}  // namespace

BoxPainting::BoxPainting(Box& painted, Canvas& ofParent, Canvas::Attributes const& handedDown,
                         Stage stage)
    : box(&painted), target(&ofParent), inherited(handedDown), content(handedDown) {
    // Most boxes have no style, which is all that the library's own classes look at.
    if (hasStyle(box->node) || box->isForeign()) {
        if (stage == Complete) {
            box->drawBackgroundTo(*target, content);
            box->drawBorderTo(*target, content);
        } else {
            isBeneathMissing = applyBackground(*box, content) || hasBorder();
        }
        box->applyContentAttributes(content);
    }
    Rect const& area = box->dimensions.content;
    isDirect = !isBeneathMissing && target->enter(area.x, area.y);
    if (isDirect) return;
    own = std::make_unique<Canvas>(target->cellBudget(), Canvas::Overlay);
    target->exchangeAttributes(*own);
}

bool BoxPainting::hasBorder() const {
    EdgeSizes const& border = box->dimensions.border;
    return border.left > 0 || border.right > 0 || border.top > 0 || border.bottom > 0;
}

BoxPainting::BoxPainting(BoxPainting&& other) noexcept
    : box(other.box),
      target(other.target),
      inherited(other.inherited),
      content(other.content),
      isBeneathMissing(other.isBeneathMissing),
      isDirect(std::exchange(other.isDirect, false)),
      own(std::move(other.own)) {}

BoxPainting::~BoxPainting() {
    if (isDirect) target->leave();
}

void BoxPainting::finish() {
    if (isDirect) return;
    target->exchangeAttributes(*own);
    if (isBeneathMissing) {
        box->drawBackgroundTo(*target, inherited);
        box->drawBorderTo(*target, inherited);
    }
    target->compose(*own, box->dimensions.content.x, box->dimensions.content.y);
}

void Box::drawTo(Canvas& canvas, Canvas::Attributes const& attributes) {
    Walk::run(drawTree(*this, canvas, attributes));
}

void InlineBox::drawTo(Canvas& canvas, Canvas::Attributes const& attributes) {
    if (children.count == 0) {
        drawLeaf(*this, canvas, attributes);
    } else {
        Box::drawTo(canvas, withElementFlag(*this, attributes));
    }
}

void Box::drawBackgroundTo(Canvas& canvas, Canvas::Attributes& attributes) {
    if (!applyBackground(*this, attributes)) return;
    Rect const area = dimensions.borderBox();
    drawStrips(canvas, " ", area, area.y, area.height, attributes);
}

void Box::drawBorderTo(Canvas& canvas, Canvas::Attributes attributes) {
    if (!hasStyle(node)) return;
    Rect const area = dimensions.borderBox();
    int const right = saturate(std::int64_t{area.x} + area.width - 1);
    int const bottom = saturate(std::int64_t{area.y} + area.height - 1);
    EdgeSizes const& border = dimensions.border;

    String const* const color = findStyle(node, Property::s_borderColor);
    if (isSet(color)) attributes.foreground = Canvas::Attributes::color(*color);

    auto const styleOf = [this](StyleProperty const& property) {
        String const* const style = findStyle(node, property, Property::s_borderStyle);
        return style != nullptr ? *style : String("*");
    };
    if (border.left > 0) {
        drawColumn(canvas, styleOf(Property::s_borderLeftStyle), area.x, area, attributes);
    }
    if (border.right > 0) {
        drawColumn(canvas, styleOf(Property::s_borderRightStyle), right, area, attributes);
    }
    if (border.top > 0) {
        drawStrips(canvas, styleOf(Property::s_borderTopStyle), area, area.y, 1, attributes);
    }
    if (border.bottom > 0) {
        drawStrips(canvas, styleOf(Property::s_borderBottomStyle), area, bottom, 1, attributes);
    }

    String const* const corner = findStyle(node, Property::s_borderCornerStyle);
    auto const drawCorner = [&](int vertical, int horizontal, int x, int y) {
        if (corner == nullptr || vertical <= 0 || horizontal <= 0) return;
        canvas.drawClipped(corner->view(), x, y, attributes);
    };
    drawCorner(border.top, border.left, area.x, area.y);
    drawCorner(border.top, border.right, right, area.y);
    drawCorner(border.bottom, border.left, area.x, bottom);
    drawCorner(border.bottom, border.right, right, bottom);
}

void Box::applyContentAttributes(Canvas::Attributes& attributes) {
    String const* const color = findStyle(node, Property::s_color);
    if (isSet(color)) attributes.foreground = Canvas::Attributes::color(*color);
    String const* const fontStyle = findStyle(node, Property::s_fontStyle);
    if (isSet(fontStyle)) applyFontStyle(*fontStyle, attributes);
}

}  // namespace CLI::XML
