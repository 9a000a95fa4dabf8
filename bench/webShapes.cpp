#include "bench/webShapes.h"

#include <string>

namespace Bench {

namespace {

constexpr std::string_view s_table = "<table><tr><td>";
constexpr std::string_view s_tableEnd = "</td></tr></table>";

/// Elements in one another, so many, around a word; again and again. A document is not deeper.
void stacks(Writer& to, unsigned depth, std::string_view open, std::string_view close) {
    while (to.next()) {
        for (unsigned i = 0; i < depth; ++i) to.add(open);
        to.addWord();
        for (unsigned i = 0; i < depth; ++i) to.add(close);
        to.add("\n");
    }
}

void stacksOfInlines(Writer& to) { stacks(to, 100, "<b>", "</b>"); }
void stacksOfBoxes(Writer& to) { stacks(to, 20, "<div style=\"border: solid\">", "</div>"); }
void stacksOfLists(Writer& to) { stacks(to, 40, "<ul><li>", "</li></ul>"); }
void stacksOfTables(Writer& to) { stacks(to, 30, s_table, s_tableEnd); }

void kept(Writer& to) {
    to.add("<pre>");
    while (to.next()) {
        to.add(std::string(to.between(0, 8), ' ')).addWords(to.between(1, 12));
        to.add("\n");
    }
    to.add("</pre>\n");
}

void items(Writer& to) {
    to.add("<ul>\n");
    while (to.next()) {
        to.add("<li>").addWords(to.between(1, 12));
        to.add("</li>\n");
    }
    to.add("</ul>\n");
}

/// So many ideographs, with a comma behind them.
void addIdeographs(Writer& to, std::size_t count) {
    for (; count > 0; --count) {
        std::size_t const c = to.between(0x4E00, 0x9FFF);
        char const bytes[] = {static_cast<char>(0xE0 | c >> 12),
                              static_cast<char>(0x80 | (c >> 6 & 0x3F)),
                              static_cast<char>(0x80 | (c & 0x3F))};
        to.add({bytes, sizeof(bytes)});
    }
    to.add("\uFF0C");
}

/// Prose of which half the bytes are Chinese.
void halfChinese(Writer& to) {
    while (to.next()) {
        to.add("<p>");
        for (std::size_t i = to.between(50, 150); i > 0; --i) {
            if (to.between(0, 1) == 0) {
                addIdeographs(to, to.between(5, 15));
            } else {
                to.addWords(5);
                to.add(" ");
            }
        }
        to.add("</p>\n");
    }
}

void chinese(Writer& to) {
    to.add("<p>");
    while (to.next()) addIdeographs(to, to.between(5, 15));
    to.add("</p>\n");
}

void accents(Writer& to) {
    to.add("<p>");
    while (to.next()) to.addWord().add("\u00E9").addWord().add(" ");
    to.add("</p>\n");
}

void repeat(Writer& to, std::string_view text) {
    to.add("<p>a");
    while (to.next()) to.add(text);
    to.add("</p>\n");
}

/// Elements without text, in one line, with white space of which nothing shows.
void emptyInlines(Writer& to) {
    to.add("<style>i { white-space: nowrap; } u { white-space: pre-line; }</style>");
    repeat(to, "<b/> <b> </b><i> </i><u> </u>");
}

void marks(Writer& to) { repeat(to, "\u0301"); }
void softHyphens(Writer& to) { repeat(to, "b&shy;"); }
void entities(Writer& to) { repeat(to, "&eacute;&#x2014;&#38;"); }
void emptyElements(Writer& to) { repeat(to, "<br/><wbr/><i/>"); }
void strayAmpersands(Writer& to) { repeat(to, "& "); }

void hugeAttribute(Writer& to) {
    to.add("<p title=\"");
    while (to.next()) to.addWord().add(" ");
    to.add("\" class=\"a b\">").addWord().add("</p>\n");
}

void justified(Writer& to) {
    to.corpus.sheet = "p { text-align: justify }";
    while (to.next()) {
        to.add("<p>").addParagraphOfWords();
        to.add("</p>\n");
    }
}

void boxedParagraphs(Writer& to) {
    to.add("<div style=\"border: solid\">");
    while (to.next()) {
        to.add("<p>").addParagraphOfWords();
        to.add("</p>\n");
    }
    to.add("</div>\n");
}

/// Cells that span as many columns and rows as they may.
void spans(Writer& to) {
    to.add("<table>");
    while (to.next()) {
        to.add("<tr>");
        if (to.partCount() % 1000 == 1) to.add("<td rowspan=\"1000\">").addWord().add("</td>");
        to.add("<td colspan=\"1000\">").addWord().add("</td></tr>\n");
    }
    to.add("</table>\n");
}

/// Borders of cells that share lines.
void collapsed(Writer& to) {
    to.corpus.sheet = "table { border-collapse: collapse } td { border: solid }";
    to.add("<table>");
    while (to.next()) to.addRow(5);
    to.add("</table>\n");
}

/// A class for each ten elements, and a rule for each class.
void classes(Writer& to) {
    std::string& sheet = to.corpus.sheet;
    while (to.next()) {
        std::string const name = "c" + std::to_string(to.partCount() / 10);
        if (to.partCount() % 10 == 0) sheet += "." + name + " { color: red }\n";
        to.add("<p class=\"a " + name + "\">").addWord().add("</p>\n");
    }
}

/// An element of many classes, and rules that ask for each of them, and for one that all ask for.
void classList(Writer& to) {
    std::string& sheet = to.corpus.sheet;
    to.add("<p class=\"a");
    while (to.next()) {
        std::string const name = "c" + std::to_string(to.partCount());
        sheet += ".a." + name + ", .a." + name + " b { color: red }\n";
        to.add(" " + name);
    }
    to.add("\"><b>").addWord().add("</b></p>\n");
}

/// Rules that ask about ancestors.
void descendants(Writer& to) {
    std::string& sheet = to.corpus.sheet;
    for (int i = 0; i < 20; ++i) sheet += "div p div .c" + std::to_string(i) + " { color: red }\n";
    while (to.next()) {
        for (int i = 0; i < 30; ++i) to.add("<div>");
        to.add("<b class=\"c" + std::to_string(to.partCount() % 30) + "\">").addWord();
        to.add("</b>");
        for (int i = 0; i < 30; ++i) to.add("</div>");
    }
}

/// Rules that ask for places among siblings.
void places(Writer& to) {
    to.corpus.sheet = "p:nth-child(3n+1) { color: red } p:last-child { color: blue }";
    while (to.next()) to.add("<p>").addWord().add("</p>\n");
}

/// A row of cells whose content sticks out, each over those behind it.
void overflowing(Writer& to) {
    to.corpus.sheet =
        "table { table-layout: fixed; width: 100%; background: red } td { white-space: nowrap }";
    to.add("<table><tr>");
    while (to.next()) to.add("<td>").addWord().add("</td>");
    to.add("</tr></table>\n");
}

constexpr Shape s_shapes[] = {
    {"accents", accents},
    {"boxed-paragraphs", boxedParagraphs},
    {"chinese", chinese},
    {"class-list", classList},
    {"classes", classes},
    {"collapsed-borders", collapsed},
    {"descendants", descendants},
    {"empty-elements", emptyElements},
    {"empty-inlines", emptyInlines},
    {"entities", entities},
    {"half-chinese", halfChinese},
    {"huge-attribute", hugeAttribute},
    {"items", items},
    {"justified", justified},
    {"marks", marks},
    {"overflowing-cells", overflowing},
    {"places", places},
    {"preserved", kept},
    {"soft-hyphens", softHyphens},
    {"spans", spans},
    {"stacks-of-boxes", stacksOfBoxes},
    {"stacks-of-inlines", stacksOfInlines},
    {"stacks-of-lists", stacksOfLists},
    {"stacks-of-tables", stacksOfTables},
    {"stray-ampersands", strayAmpersands},
};

}  // namespace

std::span<Shape const> webShapes() { return s_shapes; }

}  // namespace Bench
