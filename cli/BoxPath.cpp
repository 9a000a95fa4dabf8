#include "cli/BoxPath.h"

#include <utility>

#include "xml/dom/createDomElement.h"
#include "xml/dom/readDocument.h"
#include "xml/layout/BlockBox.h"
#include "xml/layout/makeChild.h"

using CLI::XML::Box;
using CLI::XML::DomElement;
using CLI::XML::DomNode;

namespace {

ZRLWPtr<DomElement> makeElement(CLI::XML::PullParser const& parser) {
    ZRLWPtr<DomElement> element = CLI::XML::createDomElement(parser.name);
    ZRStringHashTable<String> attributes;
    for (auto const& attribute : parser.attributes) attributes.set(attribute.name, attribute.value);
    element->setAttributes(attributes);
    return element;
}

}  // namespace

BoxPath::BoxPath() {
    ZRLWPtr<DomElement> const root = CLI::XML::createRootElement();
    boxes.push_back(ZR::MovePtr<Box>(new CLI::XML::BlockBox(root.object)));
    boxes.back()->holdNode();
}

XCode BoxPath::startElement(CLI::XML::PullParser const& parser) {
    ZRLWPtr<DomElement> const element = makeElement(parser);
    if (hidden > 0 || element->display == DomNode::None) {
        ++hidden;
        return XCode();
    }
    XCode refusal;
    ZRLWPtr<Box> box = CLI::XML::makeChild(*boxes.back(), *element, refusal);
    if (!box) return refusal;
    box->holdNode();
    boxes.push_back(std::move(box));
    return XCode();
}

void BoxPath::endElement() {
    if (hidden > 0) {
        --hidden;
    } else {
        boxes.pop_back();
    }
}

XCode BoxPath::addText() const { return hidden > 0 ? XCode() : CLI::XML::checkText(*boxes.back()); }
