#include "xml/dom/createDomElement.h"

namespace CLI::XML {

namespace {

struct VocabularyEntry {
    std::string_view tag;
    DomNode::Display display;
};

constexpr VocabularyEntry s_vocabulary[] = {
    {"h1", DomNode::Block},    {"h2", DomNode::Block},      {"h3", DomNode::Block},
    {"div", DomNode::Block},   {"p", DomNode::Block},       {"table", DomNode::Table},
    {"tr", DomNode::TableRow}, {"th", DomNode::TableCell},  {"td", DomNode::TableCell},
    {"b", DomNode::Inline},    {"strong", DomNode::Inline}, {"i", DomNode::Inline},
    {"em", DomNode::Inline},   {"mark", DomNode::Inline},
};

}  // namespace

ZRLWPtr<DomElement> createDomElement(String const& tag) {
    std::string_view const name = tag.view();
    for (VocabularyEntry const& entry : s_vocabulary) {
        // Names are short: the first byte and the length tell nearly all of them apart.
        if (name.length() == entry.tag.length() && name.front() == entry.tag.front() &&
            name == entry.tag) {
            return ZR::MovePtr<DomElement>(new DomElement(tag, entry.display));
        }
    }
    return {};
}

}  // namespace CLI::XML
