#include "xml/layout/BlockBox.h"

#include "xml/layout/BlockFlow.h"

namespace CLI::XML {

Walk BlockBox::layOut(Dimensions const& containing, LayoutPass pass) {
    if (isLaidOutByItsOwn(containing, pass)) co_return;
    bool const isSameWidth = containing.content.width == containingWidth;
    if (pass.again && isSettled && isSameWidth) co_return;
    containingWidth = containing.content.width;
    BlockFlow flow(*this, containing);
    for (unsigned i = 0; i < children.count; ++i) {
        co_await flow.add(children[i], {.again = pass.again});
    }
    flow.finish();
    if (flow.done.count == children.count) co_return;
    // Lines were broken.
    if (flow.done.capacity < children.capacity) flow.done.enlarge(children.capacity - 1);
    children = std::move(flow.done);
}

}  // namespace CLI::XML
