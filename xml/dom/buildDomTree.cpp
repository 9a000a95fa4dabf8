#include "xml/dom/buildDomTree.h"

#include "xml/dom/OpenElements.h"

namespace CLI::XML {

namespace {

/// Puts everything below one element.
class TreeBuilder final : public DocumentHandler {
public:
    explicit TreeBuilder(DomElement& root) : outermost(root) {}

    void startElement(ZRLWPtr<DomElement> element) override { open.push(std::move(element)); }

    void endElement() override {
        ZRLWPtr<DomElement> element = open.pop();
        if (element) outermost.children.add(std::move(element));
    }

    void addWords(std::string_view words) override { addTexts(innermost(), words); }
    void addWord(std::string_view word) override { innermost().children.add(makeText(word)); }

private:
    DomElement& innermost() const { return open.isEmpty() ? outermost : open.innermost(); }

    DomElement& outermost;
    OpenElements open;
};

}  // namespace

XCode buildDomTree(ZRLWPtr<DomElement>& parent, bool isTopLevel, PullParser& parser,
                   ZRList<ZRLWPtr<StyleNode>> const& styles) {
    if (!parent) parent = createRootElement();
    TreeBuilder builder(*parent);
    return readDocument(builder, isTopLevel, parser, styles);
}

}  // namespace CLI::XML
