#pragma once

#include <string_view>

#include "../../base/String.h"
#include "../../base/export.h"
#include "../parser/references.h"
#include "nodes.h"

/// The words of the language, compared exactly.
namespace CLI::XML {

/// An element that the language knows.
struct VocabularyEntry {
    std::string_view tag;      ///< Its name.
    DomNode::Display display;  ///< Where no attribute says otherwise.
};

/// All elements.
inline constexpr VocabularyEntry s_vocabulary[] = {
    {"h1", DomNode::Block},    {"h2", DomNode::Block},      {"h3", DomNode::Block},
    {"div", DomNode::Block},   {"p", DomNode::Block},       {"table", DomNode::Table},
    {"tr", DomNode::TableRow}, {"th", DomNode::TableCell},  {"td", DomNode::TableCell},
    {"b", DomNode::Inline},    {"strong", DomNode::Inline}, {"i", DomNode::Inline},
    {"em", DomNode::Inline},   {"mark", DomNode::Inline},
};

/// The element of this name, which is not empty; null where there is none.
VocabularyEntry const* findInVocabulary(std::string_view name);

/// A new element for a tag of the vocabulary, with the display kind that the tag starts with and
/// nothing else set; null for any other tag name.
GALLEY_EXPORT ZRLWPtr<DomElement> createDomElement(String const& tag);

/// A value of the attribute "display".
struct DisplayKeyword {
    std::string_view keyword;  ///< As written.
    DomNode::Display display;  ///< What it makes of an element.
};

/// All of them.
inline constexpr DisplayKeyword s_displayKeywords[] = {
    {"inline", DomNode::Inline},      {"block", DomNode::Block},          {"table", DomNode::Table},
    {"table-row", DomNode::TableRow}, {"table-cell", DomNode::TableCell}, {"none", DomNode::None},
};

/// What `value` makes of an element that is displayed as `display`: the same where it is no
/// keyword.
DomNode::Display displayOr(DomNode::Display display, std::string_view value);

/// The entities known in running text.
inline constexpr EntityReplacement s_textEntities[] = {
    {"nbsp", " "}, {"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {nullptr, nullptr},
};

/// `text` with its character references decoded: "nbsp", "amp", "lt" and "gt". Any other name is
/// dropped with its reference ("&copy;" becomes nothing); an ampersand that no semicolon follows
/// stays.
GALLEY_EXPORT String replaceEntities(String const& text);

}  // namespace CLI::XML
