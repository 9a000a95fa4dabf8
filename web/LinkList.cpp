#include "web/LinkList.h"

#include <utility>

#include "web/css/computeStyle.h"

namespace galley::web {

namespace {

std::string markerOf(std::size_t number) {
    return std::string("[").append(std::to_string(number)).append("] ");
}

}  // namespace

unsigned LinkList::numberOf(std::string_view address) {
    auto const next = static_cast<unsigned>(addresses.size() + 1);
    auto const [entry, isNew] = numbers.try_emplace(std::string(address), next);
    if (isNew) addresses.emplace_back(address);
    return entry->second;
}

void LinkList::moveTo(BlockSink& sink, Style const& around) {
    for (std::size_t const first = written; written < addresses.size(); ++written) {
        std::string marker = markerOf(written + 1);
        Style& style = styles.emplace_back(computeStyle(around, {}));
        style.overflowWrap = OverflowWrap::anywhere;
        // The longest marker stands at the edge of the page.
        style.margin.left.value = static_cast<int>(markerOf(addresses.size()).size());
        style.margin.top.value = written == first ? 1 : 0;
        int const columns = static_cast<int>(marker.size());
        sink.open(style, {std::move(marker), columns});
        Paragraph paragraph;
        paragraph.begin(style);
        paragraph.addGenerated(addresses[written]);
        sink.add(paragraph);
        sink.close();
    }
}

}  // namespace galley::web
