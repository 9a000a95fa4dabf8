#pragma once

#include <map>
#include <string_view>

#include "galley/check/DocumentReader.h"
#include "xml/css/StyleNode.h"
#include "xml/layout/Dimensions.h"

namespace galley {

/// Whether an element is known, and part of a line.
inline bool isInline(DocumentReader::Element const& element) {
    return element.isKnown && element.display == CLI::XML::DomNode::Inline;
}

/// Tells what room inline elements keep free around their words.
class InlineEdges {
public:
    explicit InlineEdges(CLI::XML::StyleList const& rules);

    /// Of an element that begins; none of any that is not inline.
    CLI::XML::EdgeSizes of(DocumentReader::Element const& element,
                           ZRVector<CLI::XML::PullParser::Attribute> const& attributes) const;

private:
    /// By selector.
    std::map<std::string_view, ZRLWPtr<CLI::XML::StyleNode>> lastRules;
};

}  // namespace galley
