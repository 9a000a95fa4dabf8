#include <tuple>

#include "tests/support/boxes.h"

namespace CLI::XML {
namespace {

/// The table's size, then each row and its cells, without what is in the cells.
std::string tableOf(Page const& page) {
    Box const& table = page.find("table");
    std::string result = rectangle(table.dimensions.content).substr(4);
    for (ZRLWPtr<Box> const& row : table.children) {
        result += " | " + rectangle(row->dimensions.content) + ":";
        for (auto const& cell : row->children) {
            result += " [" + rectangle(cell->dimensions.content) + "]";
        }
    }
    return result;
}

/// Compares tables with these rows under a sheet. The width that there is does not matter.
void expectTables(std::initializer_list<std::tuple<char const*, char const*, char const*>> cases) {
    for (auto const& [css, rows, expected] : cases) {
        for (int const width : {80, 0}) {
            Page page(String(String::formatted, "<table>%s</table>", rows), css);
            page.layOut(width);
            EXPECT_EQ(tableOf(page), expected) << css << rows << " at " << width;
        }
    }
}

constexpr char const* s_twoByTwo =
    "<tr><td>aaaaa</td><td>b</td></tr><tr><td>cc</td><td>ddd</td></tr>";

TEST(TableLayout, AlignsTheCellsOfAColumn) {
    expectTables({
        {"", s_twoByTwo, "8x2 | 0,0 8x1: [0,0 5x1] [5,0 3x1] | 0,1 8x1: [0,0 5x1] [5,0 3x1]"},
        {"td{margin-left:1;}", s_twoByTwo,
         "10x2 | 0,0 10x1: [1,0 5x1] [7,0 3x1] | 0,1 10x1: [1,0 5x1] [7,0 3x1]"},
        {"th{padding:1;}", "<tr><th>aaaaa</th><td>b</td></tr><tr><td>cc</td><td>ddd</td></tr>",
         "10x4 | 0,0 10x3: [1,1 5x1] [7,0 3x1] | 0,3 8x1: [1,0 5x1] [7,0 3x1]"},
        {"td{margin-left:1; margin-right:2;}", "<tr><td>a</td><td>b</td></tr>",
         "8x1 | 0,0 8x1: [1,0 1x1] [5,0 1x1]"},
        {"", "<tr><td>aaaaa</td><td>b</td></tr><tr><td>cc</td></tr>",
         "6x2 | 0,0 6x1: [0,0 5x1] [5,0 1x1] | 0,1 5x1: [0,0 5x1]"},
        {"", "<tr><td>a</td><td>b</td></tr><tr><td>cccc</td></tr>",
         "5x2 | 0,0 5x1: [0,0 4x1] [1,0 1x1] | 0,1 4x1: [0,0 4x1]"},
        {"", R"(<tr padding-left="2"><td>a</td><td>b</td></tr><tr><td>ccc</td><td>d</td></tr>)",
         "6x2 | 2,0 4x1: [0,0 3x1] [3,0 1x1] | 0,1 4x1: [0,0 3x1] [3,0 1x1]"},
        {"", "<tr><td>aa bb <b>cc</b></td></tr>", "8x1 | 0,0 8x1: [0,0 8x1]"},
        {"",
         "<tr><td><div><table><tr><td>aa</td><td>b</td></tr><tr><td>c</td><td>dd</td></tr>"
         "</table></div></td><td>x</td></tr>",
         "5x2 | 0,0 5x2: [0,0 4x2] [4,0 1x1]"},
    });
}

TEST(TableLayout, StacksTheRows) {
    expectTables({
        {"", "", "0x0"},
        {"tr{padding:1;}", "<tr/><tr/>", "2x4 | 1,1 0x0: | 1,3 0x0:"},
        {"", "<tr><td/><td>a</td></tr>", "1x1 | 0,0 1x1: [0,0 0x0] [0,0 1x1]"},
        {"tr{margin:1;}", "<tr><td>a</td></tr><tr><td>b</td></tr>",
         "3x6 | 1,1 1x1: [0,0 1x1] | 1,3 1x1: [0,0 1x1]"},
        {"tr{margin-top:2; border-width:1; padding-left:3;}",
         "<tr><td>a</td></tr><tr><td>b</td></tr>",
         "6x10 | 4,3 1x1: [0,0 1x1] | 4,8 1x1: [0,0 1x1]"},
        {"", R"(<tr><td padding-top="2">a</td><td margin-bottom="1">b</td></tr>)",
         "2x3 | 0,0 2x3: [0,2 1x1] [1,0 1x1]"},
    });
}

TEST(TableLayout, LetsAnUnconstrainedCellFollowTheOneBeforeIt) {
    Page page("<table><tr><td>a</td><td>b</td></tr></table>", "td{margin-left:3; margin-right:2;}");
    auto& row = static_cast<RowBox&>(page.find("tr"));
    for (unsigned i : {0U, 1U}) row[i].columnDimensions.content.width = 0x7FFFFFFF;
    row.layout(Dimensions());
    EXPECT_EQ(places(row), "tr 0,0 12x1[td 3,0 1x1['a'] td 7,0 1x1['b']]");
}

TEST(TableLayout, KeepsTheMaximaOfAColumnInItsRecord) {
    Page page(
        "<table><tr><td padding=\"1\" margin-left=\"2\">aaaaa</td><td>b</td></tr>"
        "<tr><td border-width=\"1\">cc</td></tr></table>");
    page.layOut(80);
    auto& table = static_cast<TableBox&>(page.find("table"));
    ASSERT_EQ(table.columns.count, 2U);
    EdgeSizes const edges = table.columns[0].edges();
    EXPECT_EQ(rectangle(table.columns[0].content), "3,0 5x0");
    EXPECT_EQ(rectangle(table.columns[1].content), "9,0 1x0");
    EXPECT_EQ(rectangle({edges.left, edges.right, edges.top, edges.bottom}), "4,2 0x0");
    EXPECT_EQ(rectangle(table[1][0].columnDimensions.content), "3,0 5x0");
    EXPECT_EQ(table[1][0].columnDimensions.padding.right, 1);
}

TEST(TableLayout, GoesOnFromTheRecordsOfAnEarlierLayout) {
    Page page(String(String::formatted, "<table>%s</table>", s_twoByTwo));
    page.layOut(80);
    auto& table = static_cast<TableBox&>(page.find("table"));
    table.children.removeAt(0);
    page.layOut(80);
    EXPECT_EQ(tableOf(page), "8x1 | 0,0 8x1: [0,0 5x1] [5,0 3x1]");
    ZRLWPtr<Box> const clone = table.clone();
    EXPECT_EQ(static_cast<TableBox&>(*clone).columns.count, 0U);
}

}  // namespace
}  // namespace CLI::XML
