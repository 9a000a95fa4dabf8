#include "tests/support/paint.h"

namespace CLI::XML {
namespace {

/// The rows of a page that nothing breaks.
std::string rowsOf(String const& markup) { return painted(markup); }

TEST(TextFlags, AreGatheredOnTheWayDown) {
    expectEach(
        {Row("<b>x</b>", "^[[0m^[[1mx^[[0m$\n"), Row("<strong>x</strong>", "^[[0m^[[7mx^[[0m$\n"),
         Row("<i>x</i><em>y</em>", "^[[0m^[[2mxy^[[0m$\n"),
         Row("<mark>x</mark>", "^[[0m^[[5mx^[[0m$\n"),
         Row("<b>a<i>b</i></b>c", "^[[0m^[[1ma^[[0m^[[1m^[[2mb^[[0mc$\n"),
         Row("<b display=\"block\">x</b>", "x$\n"),
         Row("<table><tr><b display=\"table-cell\">x</b></tr></table>", "^[[0m^[[1mx^[[0m$\n"),
         Row("<b><p border-left-width=\"1\">x</p></b>", "^[[0m^[[1m*x^[[0m$\n")},
        rowsOf);
}

TEST(TextFlags, FollowTheFontStyle) {
    auto const inside = [](String const& style) {
        char const* const start = "<strong font-style=\"%s\">x</strong>";
        std::string const own = painted(String(String::formatted, start, style.c_str()));
        char const* const inner = "<strong><p font-style=\"%s\">x</p></strong>";
        EXPECT_EQ(painted(String(String::formatted, inner, style.c_str())), own);
        return own;
    };
    expectEach({Row("normal", "x$\n"), Row("bold", "^[[0m^[[1mx^[[0m$\n"),
                Row("italic", "^[[0m^[[2m^[[7mx^[[0m$\n"),
                Row("oblique", "^[[0m^[[2m^[[7mx^[[0m$\n"), Row("mark", "^[[0m^[[5m^[[7mx^[[0m$\n"),
                Row("Bold", "x$\n"), Row("", "^[[0m^[[7mx^[[0m$\n")},
               inside);
}

TEST(Colours, ReachTheContentAndNotTheOwnBorder) {
    expectEach(
        {Row("<p color=\"red\">a <b color=\"white\">b</b></p>",
             "^[[0m^[[31ma ^[[0m^[[1m^[[37mb^[[0m$\n"),
         Row("<p color=\"red\"><b><p color=\"\">a</p></b></p>", "^[[0m^[[1m^[[31ma^[[0m$\n"),
         Row("<div color=\"red\"><p color=\"magenta\">a</p></div>", "a$\n"),
         Row("<p color=\"red\" border-left-width=\"1\">a</p>", "*^[[0m^[[31ma^[[0m$\n"),
         Row("<p border-left-width=\"1\" border-color=\"green\">a</p>", "^[[0m^[[32m*^[[0ma$\n"),
         Row("<div color=\"red\"><p border-left-width=\"1\">a</p></div>", "^[[0m^[[31m*a^[[0m$\n"),
         Row("<div color=\"red\"><p border-left-width=\"1\" border-color=\"x\">a</p></div>",
             "*^[[0m^[[31ma^[[0m$\n")},
        rowsOf);
}

TEST(Background, FillsTheBorderBoxAndGapsUncoverIt) {
    expectEach({Row("<p background-color=\"blue\" border-width=\"1\">a</p>",
                    "^[[0m^[[44m***^[[0m$\n^[[0m^[[44m*a*^[[0m$\n^[[0m^[[44m***^[[0m$\n"),
                Row("<p background-color=\"blue\" border-left-width=\"2\">x</p>",
                    "^[[0m^[[44m* x^[[0m$\n"),
                Row("<p background-color=\"blue\" padding-left=\"1\" margin=\"1\">a</p>",
                    "$\n ^[[0m^[[44m a^[[0m$\n"),
                Row("<p background-color=\"blue\">a<i margin-left=\"1\">c</i></p>",
                    "^[[0m^[[44ma^[[0m ^[[0m^[[2m^[[44mc^[[0m$\n"),
                Row("<div background-color=\"blue\" padding-right=\"1\">"
                    "<p background-color=\"x\" padding-right=\"1\">a</p></div>",
                    "a ^[[0m^[[44m ^[[0m$\n")},
               rowsOf);
}

TEST(Background, NeedsAColumnToFill) {
    auto const padded = [](String const& padding) {
        char const* const markup =
            "<p background-color=\"red\" border-top-width=\"1\" "
            "padding-right=\"%s\">abc</p>";
        return painted(String(String::formatted, markup, padding.c_str()));
    };
    expectEach({Row("-1", "^[[0m^[[41m**^[[0m$\n^[[0m^[[41mabc^[[0m$\n"),
                Row("-2", "^[[0m^[[41m*^[[0m$\n^[[0m^[[41mabc^[[0m$\n"),
                Row("-3", "$\n^[[0m^[[41mabc^[[0m$\n"), Row("-4", "$\n^[[0m^[[41mabc^[[0m$\n")},
               padded);
}

TEST(Painting, LeavesOutEmptyInlineBoxesAndCoversEarlierOnes) {
    expectEach({Row("<b background-color=\"blue\" border-width=\"1\"/>", ""),
                Row("<table><tr><td border-width=\"1\"/><td>a</td></tr></table>", "  a$\n"),
                Row("<b margin-right=\"-2\">abc</b>XY", "^[[0m^[[1ma^[[0mXY$\n")},
               rowsOf);
}

TEST(Painting, OfAnInlineBoxAloneAddsItsOwnFlag) {
    Page page("<p><i>x<b>y</b></i></p>");
    page.layOut(80);
    Canvas canvas;
    page.find("i").drawTo(canvas, {.flags = Canvas::Attributes::Underline});
    EXPECT_EQ(shown(canvas.dump("")), "^[[0m^[[2m^[[4mx^[[0m^[[1m^[[2m^[[4my^[[0m");
}

/// Writes down the operations that paint it.
struct LoggedBox : BlockBox {
    LoggedBox(DomNode* element, std::string& events) : BlockBox(element), log(events) {}
    void drawTo(Canvas& canvas, Canvas::Attributes const& attributes) override {
        log += "(";
        BlockBox::drawTo(canvas, attributes);
        log += ")";
    }
    void drawBackgroundTo(Canvas&, Canvas::Attributes& a) override { a.background = 1; }
    void drawBorderTo(Canvas&, Canvas::Attributes a) override {
        log += "border on " + std::to_string(a.background) + ", ";
    }
    void applyContentAttributes(Canvas::Attributes&) override { log += "content "; }
    std::string& log;
};

TEST(Painting, CallsBackgroundBorderAndContentBeforeTheChildren) {
    std::string log;
    Page const page("");
    ZRLWPtr<Box> const box = ZR::MovePtr<Box>(new LoggedBox(page.root.object, log));
    box->children.add(ZR::MovePtr<Box>(new LoggedBox(page.root.object, log)));
    Canvas canvas;
    box->drawTo(canvas, Canvas::Attributes());
    EXPECT_EQ(log, "(border on 1, content (border on 1, content ))");
}

}  // namespace
}  // namespace CLI::XML
