#pragma once

#include <string_view>

#include "xml/dom/DomNode.h"

namespace CLI::XML {

/// An element that the language knows.
struct VocabularyEntry {
    std::string_view tag;
    /// Where no attribute says otherwise.
    DomNode::Display display;
};

inline constexpr VocabularyEntry s_vocabulary[] = {
    {"h1", DomNode::Block},    {"h2", DomNode::Block},      {"h3", DomNode::Block},
    {"div", DomNode::Block},   {"p", DomNode::Block},       {"table", DomNode::Table},
    {"tr", DomNode::TableRow}, {"th", DomNode::TableCell},  {"td", DomNode::TableCell},
    {"b", DomNode::Inline},    {"strong", DomNode::Inline}, {"i", DomNode::Inline},
    {"em", DomNode::Inline},   {"mark", DomNode::Inline},
};

/// The element of this name, which is not empty; null where there is none.
inline VocabularyEntry const* findInVocabulary(std::string_view name) {
    for (VocabularyEntry const& entry : s_vocabulary) {
        // Names are short: the first byte and the length tell nearly all of them apart.
        if (name.length() == entry.tag.length() && name.front() == entry.tag.front() &&
            name == entry.tag) {
            return &entry;
        }
    }
    return nullptr;
}

}  // namespace CLI::XML
