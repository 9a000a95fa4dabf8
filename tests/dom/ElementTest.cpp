#include "tests/support/document.h"
#include "xml/dom/vocabulary.h"

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

/// The display kind; "refused" for null.
std::string displayOf(ZRLWPtr<DomElement> const& element) {
    static constexpr char const* s_kinds[] = {"block", "inline", "table", "row", "cell", "none"};
    return element ? s_kinds[element->display] : "refused";
}

TEST(Vocabulary, GivesEachTagItsDisplayKind) {
    expectEach({Row("h1", "block"),     Row("h2", "block"),      Row("h3", "block"),
                Row("div", "block"),    Row("p", "block"),       Row("table", "table"),
                Row("tr", "row"),       Row("th", "cell"),       Row("td", "cell"),
                Row("b", "inline"),     Row("strong", "inline"), Row("i", "inline"),
                Row("em", "inline"),    Row("mark", "inline"),   Row("html", "refused"),
                Row("span", "refused"), Row("br", "refused"),    Row("body", "refused"),
                Row("TD", "refused"),   Row("Div", "refused"),   Row("H1", "refused"),
                Row("h4", "refused"),   Row("", "refused")},
               [](String const& tag) {
                   ZRLWPtr<DomElement> const element = createDomElement(tag);
                   EXPECT_TRUE(!element || element->toString() == tag);
                   return displayOf(element);
               });
    EXPECT_FALSE(createDomElement(bytes("p\0x")));
}

TEST(Attributes, LetDisplayChooseTheKindByAnExactKeyword) {
    expectEach({Row("inline", "inline"), Row("block", "block"), Row("table", "table"),
                Row("table-row", "row"), Row("table-cell", "cell"), Row("none", "none"),
                Row("flex", "inline"), Row("Block", "inline"), Row("", "inline")},
               [](String const& keyword) {
                   ZRLWPtr<DomElement> const element = createDomElement("b");
                   set(*element, {"display", keyword.c_str()});
                   EXPECT_EQ(styleOf(*element, "display"), shown(keyword));
                   return displayOf(element);
               });
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
