#include "galley/check/InlineEdges.h"

#include "base/MovePtr.h"
#include "xml/layout/boxes.h"

namespace galley {

using CLI::XML::DomElement;
using CLI::XML::InlineBox;

InlineEdges::InlineEdges(CLI::XML::StyleList const& rules) {
    for (auto const& rule : rules) lastRules[rule->selector.view()] = rule;
}

CLI::XML::EdgeSizes InlineEdges::of(
    DocumentReader::Element const& element,
    ZRVector<CLI::XML::PullParser::Attribute> const& attributes) const {
    if (!isInline(element)) return {};
    auto const rule = lastRules.find(element.tag.name);
    if (attributes.count == 0 && rule == lastRules.end()) return {};
    ZRStringHashTable<String> values;
    for (auto const& attribute : attributes) values.set(attribute.name, attribute.value);
    ZRLWPtr<DomElement> const styled =
        ZR::MovePtr<DomElement>(new DomElement(String::s_empty, element.display));
    styled->setAttributes(values);
    if (rule != lastRules.end()) styled->styleNode = rule->second;
    ZRLWPtr<InlineBox> const box = ZR::MovePtr<InlineBox>(new InlineBox(styled.object));
    return box->dimensions.edges();
}

}  // namespace galley
