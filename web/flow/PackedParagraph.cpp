#include "web/flow/PackedParagraph.h"

#include <cstring>
#include <type_traits>

#include "web/flow/Paragraph.h"

namespace galley::web {

static_assert(std::is_trivially_copyable_v<Inline> && std::is_trivially_copyable_v<Item>);

PackedParagraph::PackedParagraph(Paragraph const& paragraph)
    : elementCount(static_cast<std::uint32_t>(paragraph.elements.size())),
      itemCount(static_cast<std::uint32_t>(paragraph.all.size())),
      textSize(static_cast<std::uint32_t>(paragraph.text.size())),
      contentEnd(static_cast<std::uint32_t>(paragraph.contentEnd)),
      memory(new std::byte[elementCount * sizeof(Inline) + itemCount * sizeof(Item) + textSize]) {
    std::byte* to = memory.get();
    auto const put = [&to](void const* from, std::size_t size) {
        if (size > 0) std::memcpy(to, from, size);
        to += size;
    };
    put(paragraph.elements.data(), elementCount * sizeof(Inline));
    put(paragraph.all.data(), itemCount * sizeof(Item));
    put(paragraph.text.data(), textSize);
}

void PackedParagraph::unpackTo(Paragraph& paragraph) const {
    std::byte const* from = memory.get();
    auto const take = [&from](void* to, std::size_t size) {
        if (size > 0) std::memcpy(to, from, size);
        from += size;
    };
    paragraph.elements.resize(elementCount);
    paragraph.all.resize(itemCount);
    paragraph.text.resize(textSize);
    take(paragraph.elements.data(), elementCount * sizeof(Inline));
    take(paragraph.all.data(), itemCount * sizeof(Item));
    take(paragraph.text.data(), textSize);
    paragraph.contentEnd = contentEnd;
}

}  // namespace galley::web
