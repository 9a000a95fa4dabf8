#include "tests/web/flow/Pictures.h"

namespace galley::web {
namespace {

/// Rows of ASCII with `#` for each cell that is on red, `+` on another background and `.` on none.
class BackgroundsOfRows final : public RowSink {
public:
    std::string text;

    void take(Row const& row) override {
        for (RowSpan const& span : row.view().spans) {
            Colour const background = span.look.background;
            char const on = background == Colour::ofPalette(1) ? '#' : '+';
            text.append(row.view().textOf(span).size(), isDrawn(background) ? on : '.');
        }
        text += '\n';
    }
};

struct Case {
    char const* markup;
    char const* page;
};

void expectBackgrounds(std::vector<Case> const& cases) {
    for (Case const& each : cases) {
        BackgroundsOfRows rows;
        std::vector<Problem> problems;
        Media media;
        media.width = 20;
        EXPECT_TRUE(renderPage(each.markup, {}, media, rows, problems));
        EXPECT_EQ(rows.text, each.page) << each.markup;
    }
}

// As in Chromium.
TEST(TableBackgrounds, OfRowsAndColumnsShowInTheirVisibleCellsOnly) {
    expectBackgrounds({
        {"<table><tr style='background: red'><td>a</td><td style='visibility: hidden'>b</td>"
         "<td>c</td></tr></table>",
         "###...###\n"},
        {"<table><col style='background: red'/><tr><td style='visibility: hidden'>a</td>"
         "<td style='background: red'>b</td></tr></table>",
         "...###\n"},
        {"<table><tr style='background: red; visibility: hidden'><td>a</td>"
         "<td style='visibility: visible'>b</td></tr></table>",
         "...###\n"},
        {"<table><tr style='background: red'><td>a</td><td>b</td></tr>"
         "<tr style='background: red'><td>c</td></tr></table>",
         "######\n###\n"},
        // Beside a hidden cell no line has it, and what sticks out of the table stands on what is
        // around that.
        {"<table style='visibility: hidden; border-collapse: collapse'>"
         "<tr style='background: red'><td style='border: solid'>a</td></tr></table>",
         "\n...\n\n"},
        {"<table style='table-layout: fixed; width: 4ch'><tr><td style='background: red; "
         "padding: 0; white-space: nowrap'>abcdef</td></tr></table>",
         "####..\n"},
        // Outer lines, of three bytes a cell, stand on the table.
        {"<table style='border-collapse: collapse; border-left: solid'><tr style='background: red'>"
         "<td rowspan='2'>a</td><td>b</td></tr><tr><td>c</td></tr></table>",
         "...######\n...###..\n"},
        // But it has its own, if of the same colour.
        {"<table style='table-layout: fixed; width: 4ch; background: red'><tr><td style='padding: "
         "0'><table style='width: 8ch; background: red'><tr><td>a</td></tr></table></td></tr>"
         "</table>",
         "########\n"},
    });
}

TEST(Backgrounds, StickOutWithWhatHasThemWhateverIsBelow) {
    expectBackgrounds({
        {"<div style='background: red; width: 3ch'><p style='background: red; width: 5ch'>a</p>"
         "</div>",
         "#####\n"},
        {"<div style='background: red; width: 3ch'><p style='width: 5ch'>a</p></div>", "###\n"},
        {"<div style='background: red; width: 3ch; white-space: nowrap'>"
         "<b style='background: red'>ab cd</b> ef</div>",
         "#####...\n"},
        {"<div style='background: red; width: 3ch'><table style='margin-left: 1ch'>"
         "<tr><td style='min-width: 9ch'/></tr><tr><td style='background: "
         "red'>a</td></tr></table></div>",
         "############\n"},
        {"<div style='background: red; width: 3ch'><div style='background: blue; width: 5ch; "
         "padding-left: 1ch'><p style='text-indent: -2ch; white-space: nowrap'>abcdefghijk</p>"
         "</div></div>",
         "++++++.....\n"},
        {"<ol style='background: red; width: 3ch; margin: 0; padding-left: 0'>"
         "<li style='margin-left: 5ch'>a</li></ol>",
         "###...\n"},
        // The marker of an item without a line.
        {"<ol style='background: red; width: 3ch; padding-left: 0'><li style='margin-left: 5ch; "
         "width: 9ch'><p/></li></ol>",
         "###..\n"},
        {"<div style='width: 1ch'><p style='background: red; padding-right: 50%'>a</p></div>",
         "#\n"},
    });
}

TEST(Backgrounds, OfTheBodyAreThoseOfThePageWhereItHasNone) {
    expectBackgrounds({
        {"<style>body{background:red;max-width:3ch}</style><p>a</p><p>b</p>",
         "####################\n####################\n####################\n"},
        {"<html><body style='background:red;max-width:3ch'>a</body></html>",
         "####################\n"},
        {"<html style='background:red'><body style='background:blue;max-width:3ch'>a</body></html>",
         "+++#################\n"},
        {"<div><body style='background:red;max-width:3ch'>b</body></div>", "###\n"},
    });
}

}  // namespace
}  // namespace galley::web
