#include "xml/layout/BlockBox.h"

#include <utility>

#include "xml/layout/BlockFlow.h"

namespace CLI::XML {

namespace {

struct Collector final : BlockFlow::Taker {
    ZRVector<ZRLWPtr<Box>> boxes;

    void take(ZRLWPtr<Box> box) override { boxes.add(std::move(box)); }
};

}  // namespace

Walk BlockBox::layOut(Dimensions const& containing, LayoutPass pass) {
    if (isLaidOutByItsOwn(containing, pass)) co_return;
    bool const isSameWidth = containing.content.width == decisiveWidth;
    if (pass.again && isSettled && isSameWidth) co_return;
    decisiveWidth = containing.content.width;
    Collector collector;
    BlockFlow flow(*this, containing, collector);
    for (unsigned i = 0; i < children.count; ++i) {
        co_await flow.add(children[i], {.again = pass.again});
    }
    flow.finish();
    if (collector.boxes.count == children.count) co_return;
    // Lines were broken.
    if (collector.boxes.capacity < children.capacity)
        collector.boxes.enlarge(children.capacity - 1);
    children = std::move(collector.boxes);
}

}  // namespace CLI::XML
