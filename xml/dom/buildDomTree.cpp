#include "xml/dom/buildDomTree.h"

#include <utility>
#include <vector>

#include "xml/dom/readDocument.h"

namespace CLI::XML {

namespace {

/// Puts everything below one element. An element enters the one around it when it is complete.
class TreeBuilder final : public DocumentHandler {
public:
    explicit TreeBuilder(DomElement& root) : outermost(root) {}

    bool keepsNothing() const override { return false; }

    void startElement(ZRLWPtr<DomElement> const& element) override { open.push_back(element); }

    void endElement() override {
        ZRLWPtr<DomElement> closed = std::move(open.back());
        open.pop_back();
        innermost().children.add(std::move(closed));
    }

    /// A text a word.
    void addText(std::string_view text, bool isWord) override {
        visitWords(text, isWord,
                   [this](std::string_view word) { innermost().children.add(makeText(word)); });
    }

private:
    DomElement& innermost() const { return open.empty() ? outermost : *open.back(); }

    DomElement& outermost;
    std::vector<ZRLWPtr<DomElement>> open;
};

}  // namespace

XCode buildDomTree(ZRLWPtr<DomElement>& parent, bool isTopLevel, PullParser& parser,
                   ZRList<ZRLWPtr<StyleNode>> const& styles) {
    if (!parent) parent = createRootElement();
    TreeBuilder builder(*parent);
    return readDocument(builder, isTopLevel, parser, styles);
}

}  // namespace CLI::XML
