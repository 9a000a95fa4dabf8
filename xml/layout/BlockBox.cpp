#include "xml/layout/BlockFlow.h"

namespace CLI::XML {

Walk layOutBlock(BlockBox& block, Dimensions const& containing, LayoutPass pass) {
    bool const isSameWidth = containing.content.width == block.decisiveWidth;
    if (pass.again && block.isSettled && isSameWidth) co_return;
    block.decisiveWidth = containing.content.width;
    BlockFlow flow(block, containing);
    for (unsigned i = 0; i < block.children.count; ++i) {
        co_await flow.add(block.children[i], {.again = pass.again});
    }
    flow.finish();
}

}  // namespace CLI::XML
