// How inline elements come into paragraphs while they are read.

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "web/PageBuilder.h"

namespace galley::web {

namespace {

std::string_view attribute(Element const& element, std::string_view name) {
    for (Attribute const& each : element.attributes) {
        if (each.name == name) return each.value;
    }
    return {};
}

/// Where a terminal may be sent.
bool mayFollow(std::string_view address) {
    constexpr std::string_view s_schemes[] = {"http:", "https:", "mailto:", "file:"};
    return std::any_of(std::begin(s_schemes), std::end(s_schemes),
                       [&](std::string_view scheme) { return address.starts_with(scheme); });
}

}  // namespace

PageBuilder::Role PageBuilder::openInline(Element const& element, Style const& style) {
    if (isInTable()) openAnonymousCell();
    Paragraph& paragraph = frame().paragraph;
    if (element.name == "br") {
        paragraph.addLineFeed();
        return Role::point;
    }
    if (element.name == "wbr") {
        paragraph.addBreakable();
        return Role::point;
    }
    std::string_view const address = attribute(element, "href");
    if (element.name == "a" && mayFollow(address)) return openLink(address, style);
    paragraph.open(style, nullptr);
    if (element.name != "q") return Role::inlined;
    paragraph.addText(quoteDepth++ % 2 == 0 ? "“" : "‘");
    return Role::quote;
}

PageBuilder::Role PageBuilder::openLink(std::string_view address, Style const& style) {
    Link const* link = nullptr;
    if (media.links == Media::Links::followed) {
        link = &links.emplace_back(Link{std::string(address), ++linkCount});
    }
    frame().paragraph.open(style, link);
    if (media.links != Media::Links::listed) return Role::inlined;
    linkNumbers.push_back(linkList.numberOf(address));
    return Role::numberedLink;
}

}  // namespace galley::web
