#include "xml/layout/Dimensions.h"

#include "base/saturate.h"

namespace CLI::XML {

namespace {

std::int32_t sum(std::int64_t a, std::int64_t b, std::int64_t c) { return saturate(a + b + c); }

}  // namespace

EdgeSizes Dimensions::edges() const {
    return {sum(padding.left, border.left, margin.left),
            sum(padding.right, border.right, margin.right),
            sum(padding.top, border.top, margin.top),
            sum(padding.bottom, border.bottom, margin.bottom)};
}

Rect Dimensions::borderBox() const {
    using Wide = std::int64_t;
    return {
        saturate(Wide{content.x} - padding.left - border.left),
        saturate(Wide{content.y} - padding.top - border.top),
        saturate(Wide{content.width} + padding.left + padding.right + border.left + border.right),
        saturate(Wide{content.height} + padding.top + padding.bottom + border.top + border.bottom)};
}

Rect Dimensions::marginBox() const {
    using Wide = std::int64_t;
    Rect const inner = borderBox();
    return {saturate(Wide{inner.x} - margin.left), saturate(Wide{inner.y} - margin.top),
            sum(inner.width, margin.left, margin.right),
            sum(inner.height, margin.top, margin.bottom)};
}

}  // namespace CLI::XML
