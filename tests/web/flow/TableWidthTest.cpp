// What holds for tables at every width.

#include <algorithm>
#include <sstream>

#include "tests/web/flow/Pictures.h"
#include "web/text/Cluster.h"

namespace galley::web {
namespace {

int columnsOf(std::string const& row) {
    int columns = 0;
    for (std::size_t i = 0; i < row.size();) {
        Cluster const cluster = clusterAt(row, i, false);
        columns += static_cast<int>(cluster.width);
        i = cluster.end;
    }
    return columns;
}

int widestOf(std::string const& page) {
    std::istringstream rows(page);
    int widest = 0;
    for (std::string row; std::getline(rows, row);) widest = std::max(widest, columnsOf(row));
    return widest;
}

struct NarrowCase {
    char const* markup;
    /// Edges, and a cell for each letter that stands beside others.
    unsigned least;
};

TEST(Tables, NeverPassTheirContainerWhereTheirLeastFits) {
    NarrowCase const cases[] = {
        {"<table><tr><td>some words</td><td>and others, longer</td></tr></table>", 6},
        {"<table style='border: solid'><tr><td style='border: solid'>one</td></tr></table>", 7},
        {"<style>td { border: solid }</style><table style='border-collapse: collapse; width: 100%'>"
         "<tr><td>a b c</td><td style='width: 30%'>defghi</td></tr><tr><td colspan='2'>jk</td></tr>"
         "</table>",
         9},
        {"<table style='margin: 0 2ch; border-spacing: 1ch 0'><tr><td rowspan='2'>ab</td>"
         "<td style='width: 9ch'>cd</td></tr><tr><td><table style='border: solid'><tr><td>ef</td>"
         "<td>gh</td></tr></table></td></tr></table>",
         // Margins, spacing, the edges of two cells, and the table in one.
         4 + 3 + 4 + 1 + 8},
    };
    for (NarrowCase const& each : cases) {
        for (unsigned width = each.least; width <= 200; ++width) {
            EXPECT_LE(widestOf(textOf(each.markup, width)), static_cast<int>(width)) << each.markup;
        }
    }
}

TEST(Tables, LoseNoLetterAtAnyWidth) {
    char const* const markup =
        "<table><caption>abc</caption><tr><td>def ghi</td><td rowspan='2'>jkl<br/>mno</td></tr>"
        "<tr><td style='border: solid'>pqr<table><tr><td>stu</td></tr></table></td></tr></table>";
    for (unsigned width = 1; width <= 60; ++width) {
        std::string page = textOf(markup, width);
        std::erase_if(page, [](char c) { return c < 'a' || c > 'z'; });
        std::sort(page.begin(), page.end());
        EXPECT_EQ(page, "abcdefghijklmnopqrstu") << width;
    }
}

}  // namespace
}  // namespace galley::web
