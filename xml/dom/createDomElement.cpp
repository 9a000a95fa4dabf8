#include "xml/dom/createDomElement.h"

#include "xml/dom/vocabulary.h"

namespace CLI::XML {

ZRLWPtr<DomElement> createDomElement(String const& tag) {
    VocabularyEntry const* const entry = findInVocabulary(tag.view());
    if (entry == nullptr) return {};
    return ZR::MovePtr<DomElement>(new DomElement(tag, entry->display));
}

}  // namespace CLI::XML
