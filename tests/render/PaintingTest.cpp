#include "tests/support/paint.h"

namespace CLI::XML {
namespace {

void expectRows(std::initializer_list<std::pair<char const*, char const*>> cases) {
    for (auto const& [markup, expected] : cases) EXPECT_EQ(painted(markup), expected) << markup;
}

TEST(TextFlags, AreGatheredOnTheWayDown) {
    expectRows({{"<b>x</b>", "^[[0m^[[1mx^[[0m$\n"},
                {"<strong>x</strong>", "^[[0m^[[7mx^[[0m$\n"},
                {"<i>x</i><em>y</em>", "^[[0m^[[2mxy^[[0m$\n"},
                {"<mark>x</mark>", "^[[0m^[[5mx^[[0m$\n"},
                {"<b>a<i>b</i></b>c", "^[[0m^[[1ma^[[0m^[[1m^[[2mb^[[0mc$\n"},
                {R"(<b display="block">x</b>)", "x$\n"},
                {R"(<table><tr><b display="table-cell">x</b></tr></table>)", "^[[0m^[[1mx^[[0m$\n"},
                {R"(<b><p border-left-width="1">x</p></b>)", "^[[0m^[[1m*x^[[0m$\n"}});
}

TEST(TextFlags, FollowTheFontStyle) {
    using Row = std::pair<char const*, char const*>;
    for (auto const& [style, expected] :
         {Row("normal", "x$\n"), Row("bold", "^[[0m^[[1mx^[[0m$\n"),
          Row("italic", "^[[0m^[[2m^[[7mx^[[0m$\n"), Row("oblique", "^[[0m^[[2m^[[7mx^[[0m$\n"),
          Row("mark", "^[[0m^[[5m^[[7mx^[[0m$\n"), Row("Bold", "x$\n"),
          Row("", "^[[0m^[[7mx^[[0m$\n")}) {
        for (char const* const markup : {"<strong font-style=\"%s\">x</strong>",
                                         "<strong><p font-style=\"%s\">x</p></strong>"}) {
            std::string filled = markup;
            filled.replace(filled.find("%s"), 2, style);
            EXPECT_EQ(painted(filled.c_str()), expected) << filled;
        }
    }
}

TEST(Colours, ReachTheContentAndNotTheOwnBorder) {
    expectRows(
        {{R"(<p color="red">a <b color="white">b</b></p>)",
          "^[[0m^[[31ma ^[[0m^[[1m^[[37mb^[[0m$\n"},
         {R"(<div color="red"><p color="">a</p></div>)", "^[[0m^[[31ma^[[0m$\n"},
         {R"(<div color="red"><p color="magenta">a</p></div>)", "a$\n"},
         {R"(<p color="red" border-left-width="1">a</p>)", "*^[[0m^[[31ma^[[0m$\n"},
         {R"(<p border-left-width="1" border-color="green">a</p>)", "^[[0m^[[32m*^[[0ma$\n"},
         {R"(<div color="red"><p border-left-width="1">a</p></div>)", "^[[0m^[[31m*a^[[0m$\n"},
         {R"(<div color="red"><p border-left-width="1" border-color="x">a</p></div>)",
          "*^[[0m^[[31ma^[[0m$\n"}});
}

TEST(Background, FillsTheBorderBox) {
    expectRows(
        {{R"(<p background-color="blue" border-width="1">a</p>)",
          "^[[0m^[[44m***^[[0m$\n^[[0m^[[44m*a*^[[0m$\n^[[0m^[[44m***^[[0m$\n"},
         {R"(<p background-color="blue" border-left-width="2">x</p>)", "^[[0m^[[44m* x^[[0m$\n"},
         {R"(<p background-color="blue" padding-left="1" margin="1">a</p>)",
          "$\n ^[[0m^[[44m a^[[0m$\n"},
         {R"(<p background-color="blue">a<i margin-left="1">c</i></p>)",
          "^[[0m^[[44ma^[[0m ^[[0m^[[2m^[[44mc^[[0m$\n"},
         {R"(<div background-color="blue" padding-right="1">)"
          R"(<p background-color="x" padding-right="1">a</p></div>)",
          "a ^[[0m^[[44m ^[[0m$\n"}});
}

TEST(Background, NeedsAColumnToFill) {
    using Row = std::pair<int, char const*>;
    for (auto const& [padding, top] :
         {Row(-1, "^[[0m^[[41m**^[[0m"), Row(-2, "^[[0m^[[41m*^[[0m"), Row(-3, ""), Row(-4, "")}) {
        String const markup(String::formatted,
                            R"(<p background-color="red" border-top-width="1" padding-right="%d">)"
                            "abc</p>",
                            padding);
        EXPECT_EQ(painted(markup), top + std::string("$\n^[[0m^[[41mabc^[[0m$\n")) << padding;
    }
}

TEST(Painting, LeavesOutEmptyInlineBoxesAndCoversEarlierOnes) {
    expectRows({{R"(<b background-color="blue" border-width="1"/>)", ""},
                {R"(<table><tr><td border-width="1"/><td>a</td></tr></table>)", "  a$\n"},
                {R"(<b margin-right="-2">abc</b>XY)", "^[[0m^[[1ma^[[0mXY$\n"}});
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
    Page page("");
    ZRLWPtr<Box> const box = ZR::MovePtr<Box>(new LoggedBox(page.root.object, log));
    box->children.add(ZR::MovePtr<Box>(new LoggedBox(page.root.object, log)));
    Canvas canvas;
    box->drawTo(canvas, Canvas::Attributes());
    EXPECT_EQ(log, "(border on 1, content (border on 1, content ))");
}

}  // namespace
}  // namespace CLI::XML
