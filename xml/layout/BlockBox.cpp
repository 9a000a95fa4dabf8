#include "xml/layout/BlockBox.h"

#include "xml/layout/BlockFlow.h"

namespace CLI::XML {

Walk BlockBox::layOut(Dimensions const& containing, LayoutPass pass) {
    if (isLaidOutByItsOwn(containing, pass)) co_return;
    bool const isSameWidth = containing.content.width == containingWidth;
    if (pass.again && isSettled && isSameWidth) co_return;
    containingWidth = containing.content.width;
    BlockFlow::Boxes boxes;
    BlockFlow flow(*this, containing, boxes);
    for (unsigned i = 0; i < children.count; ++i) {
        co_await flow.add(children[i], {.again = pass.again});
    }
    flow.finish();
    if (boxes.done.count == children.count) co_return;
    // Lines were broken.
    if (boxes.done.capacity < children.capacity) boxes.done.enlarge(children.capacity - 1);
    children = std::move(boxes.done);
}

}  // namespace CLI::XML
