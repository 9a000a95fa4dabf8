// Plain text is laid out by a search for blanks, and has to come out as all other text does.

#include "web/flow/PlainText.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "web/flow/Content.h"
#include "web/flow/LineBreaker.h"

namespace {

using namespace galley::web;

std::vector<int> widthsOfPlain(PlainText const& plain, int columns, int indent, bool partsWords) {
    std::vector<int> widths;
    breakLines(plain, columns, partsWords, indent,
               [&widths](std::string_view, int cells, int) { widths.push_back(cells); });
    return widths;
}

std::vector<int> widthsOfItems(Paragraph const& paragraph, int columns, int indent,
                               Wrapping wrapping) {
    LineBreaker breaker(paragraph, columns, LineBreaker::Purpose::layingOut, wrapping);
    std::vector<int> widths;
    for (Place at; !breaker.isAtEnd(at); indent = 0) {
        TextLine const line = breaker.next(at, columns, indent);
        widths.push_back(line.width);
        at = line.end;
    }
    return widths;
}

std::string randomText(std::mt19937& random) {
    std::string text;
    for (auto words = random() % 6 + 1; words > 0; --words) {
        for (auto letters = random() % 9 + 1; letters > 0; --letters) {
            constexpr char const* s_letters[] = {"a", "b", "1",      ".",     ",",
                                                 "'", "(", "\u00E9", "\u03BB"};
            text += s_letters[random() % std::size(s_letters)];
        }
        text += random() % 8 == 0 ? "  \n" : " ";
    }
    return text;
}

TEST(PlainText, HasTheLinesOfAllOtherText) {
    std::mt19937 random(7);
    int plainOnes = 0;
    for (int round = 0; round < 2000; ++round) {
        Style style;
        style.overflowWrap = static_cast<OverflowWrap>(random() % 3);
        style.textIndent.value = static_cast<int>(random() % 9) - 4;
        Paragraph paragraph;
        paragraph.begin(style);
        std::string const text = randomText(random);
        paragraph.addText(text);
        paragraph.finish();
        KeptText read;
        if (!readPlainText(read, text, style)) continue;
        ++plainOnes;
        EXPECT_EQ(read.text.back(), ' ');
        read.text.pop_back();
        EXPECT_EQ(read.isAscii, skipAscii(text, 0) == text.size());
        PlainText const plain = read.view();
        for (Wrapping const wrapping : {Wrapping::asStyled, Wrapping::anywhere}) {
            EXPECT_EQ(measure(plain, wrapping), measure(paragraph, wrapping)) << text;
            bool const partsWords =
                LineBreaker::mayPart(style, LineBreaker::Purpose::layingOut, wrapping);
            for (int columns = 0; columns < 30; ++columns) {
                int const indent = style.textIndent.value;
                EXPECT_EQ(widthsOfPlain(plain, columns, indent, partsWords),
                          widthsOfItems(paragraph, columns, indent, wrapping))
                    << text << columns << ' ' << indent;
            }
        }
    }
    EXPECT_GT(plainOnes, 1000);
}

}  // namespace
