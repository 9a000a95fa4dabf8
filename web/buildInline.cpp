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

/// As the URL Standard reads it, 4.4: blanks and controls around it count nothing, and neither do
/// tabs and the ends of lines in it.
std::string addressOf(Element const& element) {
    std::string_view address = attribute(element, "href");
    auto const isAround = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
    while (!address.empty() && isAround(address.front())) address.remove_prefix(1);
    while (!address.empty() && isAround(address.back())) address.remove_suffix(1);
    std::string result(address);
    std::erase_if(result, [](char c) { return c == '\t' || c == '\n' || c == '\r'; });
    return result;
}

/// Where a terminal may be sent.
bool mayFollow(std::string_view address) {
    constexpr std::string_view s_schemes[] = {"http:", "https:", "mailto:", "file:"};
    auto const lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
    };
    std::string scheme(address.substr(0, address.find(':') + 1));
    std::transform(scheme.begin(), scheme.end(), scheme.begin(), lower);
    return std::find(std::begin(s_schemes), std::end(s_schemes), scheme) != std::end(s_schemes);
}

}  // namespace

PageBuilder::Role PageBuilder::openInline(Element const& element, Style const& style) {
    if (isInTable()) openAnonymousCell();
    Paragraph& content = paragraph();
    if (element.name == "br") {
        content.addLineFeed();
        return Role::point;
    }
    if (element.name == "wbr") {
        content.addBreakable();
        return Role::point;
    }
    if (element.name == "a") {
        std::string const address = addressOf(element);
        if (isVisible(style) && mayFollow(address)) return openLink(address, style);
    }
    content.open(style, nullptr);
    if (element.name != "q") return Role::inlined;
    content.addText(quoteDepth++ == 0 ? "“" : "‘");
    return Role::quote;
}

PageBuilder::Role PageBuilder::openLink(std::string_view address, Style const& style) {
    Link const* link = nullptr;
    if (media.links == Media::Links::followed) {
        link = &links.emplace_back(Link{std::string(address), ++linkCount});
    }
    paragraph().open(style, link);
    if (media.links != Media::Links::listed) return Role::inlined;
    linkNumbers.push_back(linkList.numberOf(address));
    return Role::numberedLink;
}

}  // namespace galley::web
