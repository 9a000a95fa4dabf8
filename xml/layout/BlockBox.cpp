#include "xml/layout/BlockBox.h"

#include "xml/layout/placement.h"

namespace CLI::XML {

void BlockBox::layout(Dimensions const& containing) {
    EdgeSizes const edges = dimensions.edges();
    std::int32_t const available =
        saturate(std::int64_t{containing.content.width} - edges.left - edges.right);
    // The children read the width that they are offered from here.
    dimensions.content.width = available;
    DownwardStack stack(dimensions);
    for (unsigned i = 0; i < children.count;) {
        Box& child = *children[i];
        stack.place(child.dimensions);
        child.layout(dimensions);
        if (child.dimensions.marginBox().width > available) {
            ZRLWPtr<Box> const rest = child.split(available);
            if (rest) {
                children.insert(i + 1, rest);
                // Again, now with less content.
                continue;
            }
        }
        stack.add(child.dimensions);
        ++i;
    }
    stack.finish();
}

}  // namespace CLI::XML
