#pragma once

#include <string_view>
#include <utility>

#include "../../base/ZRLWPtr.h"
#include "../../base/export.h"
#include "DomNode.h"

namespace CLI::XML {

/// One word of running text, with the space that followed it.
class GALLEY_EXPORT DomText final : public DomNode {
public:
    /// The word, its references decoded.
    String text;

    /// `word` with the space that followed it, if one did.
    explicit DomText(String word) : DomNode(Text, Inline), text(std::move(word)) {}
    ~DomText() override = default;

    String toString() const override;
    String dump(unsigned indent) const override;
};

/// A new text node.
inline ZRLWPtr<DomNode> makeText(std::string_view word) {
    return ZR::MovePtr<DomNode>(
        new DomText(String(word.data(), 0, static_cast<int>(word.length()))));
}

/// `node` as a text; null for null and for an element.
inline DomText const* asText(DomNode const* node) {
    bool const isText = node != nullptr && node->kind == DomNode::Text;
    return isText ? static_cast<DomText const*>(node) : nullptr;
}

}  // namespace CLI::XML
