#include "tests/support/document.h"
#include "xml/dom/createDomElement.h"

namespace CLI::XML {
namespace {

/// Gives the element these attributes: names and values in turn.
void set(DomElement& element, std::initializer_list<char const*> namesAndValues) {
    ZRStringHashTable<String> table;
    for (auto const* next = namesAndValues.begin(); next != namesAndValues.end(); next += 2) {
        table.add(next[0], next[1]);
    }
    EXPECT_EQ(outcome(element.setAttributes(table)), "ok");
}

std::string styleOf(DomElement const& element, char const* property) {
    String value = "untouched";
    std::string const result = outcome(element.getStyle(property, value));
    return (result == "ok" ? "" : "no, ") + shown(value);
}

TEST(Vocabulary, GivesEachTagItsDisplayKind) {
    using Row = std::pair<char const*, DomNode::Display>;
    for (auto const& [tag, display] :
         {Row("h1", DomNode::Block), Row("h2", DomNode::Block), Row("h3", DomNode::Block),
          Row("div", DomNode::Block), Row("p", DomNode::Block), Row("table", DomNode::Table),
          Row("tr", DomNode::TableRow), Row("th", DomNode::TableCell),
          Row("td", DomNode::TableCell), Row("b", DomNode::Inline), Row("strong", DomNode::Inline),
          Row("i", DomNode::Inline), Row("em", DomNode::Inline), Row("mark", DomNode::Inline)}) {
        ZRLWPtr<DomElement> const element = createDomElement(tag);
        ASSERT_TRUE(element) << tag;
        EXPECT_EQ(element->display, display) << tag;
        EXPECT_EQ(element->toString(), tag);
    }
    for (char const* const tag : {"html", "span", "br", "body", "TD", "Div", "H1", "h4", ""}) {
        EXPECT_FALSE(createDomElement(tag)) << tag;
    }
}

TEST(Attributes, LetDisplayChooseTheKindByAnExactKeyword) {
    using Row = std::pair<char const*, DomNode::Display>;
    for (auto const& [keyword, display] :
         {Row("inline", DomNode::Inline), Row("block", DomNode::Block),
          Row("table", DomNode::Table), Row("table-row", DomNode::TableRow),
          Row("table-cell", DomNode::TableCell), Row("none", DomNode::None),
          Row("flex", DomNode::Inline), Row("Block", DomNode::Inline), Row("", DomNode::Inline)}) {
        ZRLWPtr<DomElement> const element = createDomElement("b");
        set(*element, {"display", keyword});
        EXPECT_EQ(element->display, display) << keyword;
        EXPECT_EQ(styleOf(*element, "display"), keyword);
    }
}

TEST(Attributes, AreReplacedWhileTheDisplayKindStays) {
    ZRLWPtr<DomElement> const element = createDomElement("td");
    set(*element, {"z", "1", "display", "none", "a", "2"});
    EXPECT_EQ(element->attributes.head.prev->key, "z");
    EXPECT_EQ(element->attributes.head.next->key, "a");
    set(*element, {"a", "3"});
    EXPECT_EQ(element->display, DomNode::None);
    element->setAttributes(element->attributes);
    EXPECT_EQ(styleOf(*element, "a") + styleOf(*element, "z"), "3no, untouched");
}

TEST(ElementStyle, ComesFromTheAttributesBeforeTheRule) {
    ZRLWPtr<DomElement> const element = createDomElement("p");
    EXPECT_EQ(styleOf(*element, "color"), "no, untouched");
    element->styleNode = ZR::MovePtr<StyleNode>(new StyleNode("p"));
    element->styleNode->declarations.set("color", "blue");
    element->styleNode->declarations.set("display", "none");
    EXPECT_EQ(styleOf(*element, "color"), "blue");
    set(*element, {"color", "red", "style", "margin:1"});
    EXPECT_EQ(styleOf(*element, "color"), "red");
    EXPECT_EQ(styleOf(*element, "display"), "none");
    EXPECT_EQ(element->display, DomNode::Block);
    for (char const* const p : {"Color", "margin"})
        EXPECT_EQ(styleOf(*element, p), "no, untouched");
}

}  // namespace
}  // namespace CLI::XML
