#include "xml/dom/vocabulary.h"

namespace CLI::XML {

VocabularyEntry const* findInVocabulary(std::string_view name) {
    for (VocabularyEntry const& entry : s_vocabulary) {
        // Names are short: the first byte and the length tell nearly all of them apart.
        if (name.length() == entry.tag.length() && name.front() == entry.tag.front() &&
            name == entry.tag) {
            return &entry;
        }
    }
    return nullptr;
}

ZRLWPtr<DomElement> createDomElement(String const& tag) {
    VocabularyEntry const* const entry = findInVocabulary(tag.view());
    if (entry == nullptr) return {};
    return ZR::MovePtr<DomElement>(new DomElement(tag, entry->display));
}

DomNode::Display displayOr(DomNode::Display display, std::string_view value) {
    for (DisplayKeyword const& candidate : s_displayKeywords) {
        if (value == candidate.keyword) return candidate.display;
    }
    return display;
}

String replaceEntities(String const& text) { return decodeReferences(text, s_textEntities); }

}  // namespace CLI::XML
