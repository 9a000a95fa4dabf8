// Pages for what gives ambiguous characters two cells, or has no characters for frames.

#include "tests/web/flow/Pictures.h"
#include "web/text/Cluster.h"

namespace galley::web {
namespace {

/// Rows as bare text, of which each takes the cells that it says.
class CheckedRows final : public RowSink {
public:
    explicit CheckedRows(bool isAmbiguousWide) : isWide(isAmbiguousWide) {}

    std::string text;

    void take(Row const& row) override {
        EXPECT_EQ(row.width(), countCells(row.text(), isWide)) << row.text();
        text += "|";
        text += row.text().substr(0, row.text().find_last_not_of(' ') + 1);
    }

private:
    bool isWide;
};

std::string pageOf(std::string_view markup, CellRules cells) {
    CheckedRows rows(cells.isAmbiguousWide);
    std::vector<Problem> problems;
    Media media;
    media.width = 9;
    media.cells = cells;
    EXPECT_TRUE(renderPage(markup, {}, media, rows, problems)) << markup;
    return rows.text;
}

TEST(CellRules, GiveAmbiguousCharactersTwoCells) {
    struct Case {
        char const* markup;
        char const* page;
    };
    constexpr Case cases[] = {
        {"aa ±± §§ bb", "|aa ±±|§§ bb"},
        {"<q>a b c</q>", "|“a b c”"},
        {"±±±±±±", "|±±±±|±±"},
        {"<ul><li>a</li></ul>", "|• a"},
        // A cell's text covers a half of what sticks out of the one before.
        {"<table style='table-layout: fixed; width: 9'><tr><td style='padding: 0; width: 2; "
         "white-space: pre'>a±</td><td padding='0'>b</td></tr></table>",
         "|a b"},
        // A border has one cell.
        {"<p style='border-left: \"±\"; border-right: \":\"'>±a</p>", "| ±a    :"},
    };
    for (auto const& [markup, page] : cases) {
        EXPECT_EQ(pageOf(markup, {.isAmbiguousWide = true}), page) << markup;
    }
}

TEST(CellRules, DrawFramesInAscii) {
    struct Case {
        char const* markup;
        char const* page;
    };
    constexpr Case cases[] = {
        {"<div style='border: solid; border-radius: 5px'>a</div>",
         "|+-------+||a      ||+-------+"},
        {"<div style='border: double'>a</div>", "|+=======+||a      ||+=======+"},
        {"<div style='border: dashed; border-top: thick dotted'>a</div>",
         "|+=======+||a      ||+-------+"},
        {"a<hr/>", "|a|---------"},
        {"<div style='border-left: \"│\"'>a</div>", "|│a"},
        {"<table style='border-collapse: collapse'><tr><td border='solid'>a</td>"
         "<td border='double'>b</td></tr></table>",
         "|+---+===+|| a | b ||+---+===+"},
        {"<p>•±</p>", "|•±"},
    };
    for (auto const& [markup, page] : cases) {
        EXPECT_EQ(pageOf(markup, {.hasAsciiFrames = true}), page) << markup;
    }
}

}  // namespace
}  // namespace galley::web
