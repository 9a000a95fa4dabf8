#include "xml/layout/WidthSums.h"

namespace CLI::XML {

WidthSums::WidthSums(Items const& items) {
    before.reserve(items.count() + 1);
    std::int64_t sum = 0;
    for (std::uint32_t i = 0; i < items.count(); ++i) {
        before.push_back(sum);
        Item const& item = items[i];
        if (item.kind == Item::Open) {
            sum += items.outerWidth(item, 0);
        } else if (item.kind != Item::Close) {
            sum += item.bytes.length;
        }
    }
    before.push_back(sum);
}

}  // namespace CLI::XML
