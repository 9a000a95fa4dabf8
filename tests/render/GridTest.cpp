// What frames on one grid show is what canvases of their own would, each composed onto the one
// around when it is complete.

#include "xml/render/Grid.h"

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "tests/support/text.h"

namespace CLI::XML {
namespace {

struct Step {
    enum Kind {
        Enter,
        Draw,
        Leave,
        Beneath,  ///< Draws beneath the frame that was left just before.
        Move,     ///< Moves the rows above row y out.
    };
    Kind kind;
    int x = 0;
    int y = 0;
    std::string text = {};
    int times = 1;
    int height = 1;
    Canvas::Attributes look = {};
};
using Steps = std::vector<Step>;

Step enter(int x, int y) { return {Step::Enter, x, y}; }
Step leave() { return {Step::Leave}; }
Step move(int y) { return {Step::Move, 0, y}; }
Step draw(std::string const& text, int x, int y) { return {Step::Draw, x, y, text}; }
Step draw(std::string const& text, int times, int x, int y, int height) {
    return {Step::Draw, x, y, text, times, height};
}
Step beneath(std::string const& text, int times, int x, int y, int height) {
    return {Step::Beneath, x, y, text, times, height};
}

std::ostream& operator<<(std::ostream& out, Steps const& steps) {
    for (Step const& step : steps) {
        out << "edlbm"[step.kind] << ' ' << step.x << ',' << step.y;
        if (!step.text.empty()) {
            out << " '" << shown(step.text.c_str()) << "' " << step.times << 'x' << step.height;
        }
        out << '\n';
    }
    return out;
}

/// The steps, and all frames left that are still open then.
Steps closed(Steps steps) {
    int depth = 0;
    for (Step const& step : steps) {
        depth += step.kind == Step::Enter ? 1 : 0;
        depth -= step.kind == Step::Leave ? 1 : 0;
    }
    for (; depth > 0; --depth) steps.push_back(leave());
    return steps;
}

std::size_t countBeneath(Steps const& steps, std::size_t begin) {
    std::size_t end = begin;
    while (end < steps.size() && steps[end].kind == Step::Beneath) ++end;
    return end - begin;
}

std::string pageOfGrid(Steps const& steps) {
    CellBudget budget(CellBudget::ofDocument(0));
    Grid grid(budget);
    String page;
    std::size_t covered = 0;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        Step const& step = steps[i];
        if (step.kind == Step::Enter) {
            grid.enter(step.x, step.y);
        } else if (step.kind == Step::Leave) {
            covered = countBeneath(steps, i + 1);
            if (covered > 0) {
                grid.leaveAndCover();
            } else {
                grid.leave();
            }
        } else if (step.kind == Step::Move) {
            grid.moveRowsTo(page, grid.originRow() + step.y);
        } else {
            grid.draw(step.text, step.times, step.x, step.y, step.height, step.look);
            if (step.kind == Step::Beneath && --covered == 0) grid.uncover();
        }
    }
    grid.moveRowsTo(page);
    EXPECT_FALSE(budget.isExceeded());
    return shown(page);
}

void drawOn(Canvas& canvas, Step const& step) {
    std::string row;
    for (int i = 0; i < step.times; ++i) row += step.text;
    for (int i = 0; i < step.height; ++i) canvas.drawClipped(row, step.x, step.y + i, step.look);
}

/// What is beneath a frame is drawn onto the canvas around before that is composed.
std::string pageOfCanvases(Steps const& steps) {
    struct Frame {
        std::unique_ptr<Canvas> canvas;
        int x;
        int y;
    };
    std::vector<Frame> frames;
    frames.push_back({std::make_unique<Canvas>(), 0, 0});
    for (std::size_t i = 0; i < steps.size(); ++i) {
        Step const& step = steps[i];
        if (step.kind == Step::Enter) {
            frames.push_back({std::make_unique<Canvas>(), step.x, step.y});
        } else if (step.kind == Step::Leave) {
            Frame const inner = std::move(frames.back());
            frames.pop_back();
            Canvas& around = *frames.back().canvas;
            for (std::size_t n = countBeneath(steps, i + 1); n > 0; --n) drawOn(around, steps[++i]);
            around.drawClipped(*inner.canvas, inner.x, inner.y);
        } else if (step.kind != Step::Move) {
            drawOn(*frames.back().canvas, step);
        }
    }
    return shown(frames.front().canvas->dump("\n"));
}

struct FrameCase {
    Steps steps;
    std::string page;
};

void expectPages(std::vector<FrameCase> const& cases) {
    for (auto const& [steps, page] : cases) {
        EXPECT_EQ(pageOfGrid(closed(steps)), page) << steps;
        EXPECT_EQ(pageOfCanvases(closed(steps)), page) << steps;
    }
}

std::string const s_nul("\0x", 2);

TEST(Grid, FillsTheWayToAFrameFromTheOutermostOneInwards) {
    expectPages({
        {{enter(2, 1), draw("X", 0, 0)}, "$\n  X$\n"},
        {{enter(2, 0), draw("X", 0, 1)}, "  $\n  X$\n"},
        {{enter(1, 1), enter(2, 1), draw("X", 0, 0)}, "$\n $\n   X$\n"},
        {{draw("abcdefgh", 0, 0), enter(2, 0), enter(3, 0), draw("X", 0, 0)}, "ab   Xgh$\n"},
        {{draw("abcdefgh", 0, 0), enter(2, 0), draw("cd", 0, 0), enter(3, 0), draw("X", 0, 0)},
         "abcd Xgh$\n"},
        {{draw("a", 8, 0, 0, 3), enter(2, 0), enter(3, 2), draw("X", 0, 0)},
         "aaaaaaaa$\naaaaaaaa$\naa   Xaa$\n"},
        {{draw("a", 8, 0, 0, 3), enter(2, 0), enter(3, 0), draw("X", 0, 2)},
         "aa   aaa$\naa   aaa$\naa   Xaa$\n"},
        {{enter(5, 0), draw(s_nul, 0, 0), leave(), enter(2, 0), draw("X", 1, 0)}, "   X $\n"},
    });
}

TEST(Grid, CoversWhatAFrameDrewAndNoMore) {
    expectPages({
        {{draw("a", 3, 0, 0, 2), enter(1, 0), draw("X", 0, 0)}, "aXa$\naaa$\n"},
        {{enter(1, 0), draw("X", 0, 0), draw("Y", 1, 2), leave(), beneath(".", 4, 0, 0, 4)},
         ".X..$\n....$\n. Y.$\n....$\n"},
        {{enter(1, 0), draw("XX", 0, 0), leave(), beneath(".", 2, 0, 0, 1),
          beneath("-", 2, 2, 0, 1)},
         ".XX-$\n"},
        // What has nothing in it covers nothing.
        {{enter(1, 0), leave(), beneath(".", 3, 0, 0, 1)}, "...$\n"},
        {{enter(1, 0), draw("X", 0, 0), leave(), beneath(".", 3, 0, 0, 1), draw("Y", 1, 0)},
         ".Y.$\n"},
        // A text goes on behind the covered cells as if they were not there.
        {{enter(3, 0), draw("X", 0, 0), leave(), beneath("abc", 3, -1, 0, 1)}, "bcaXcabc$\n"},
        // Beneath the outer frame, not beneath the inner one.
        {{enter(0, 0), enter(1, 0), draw("X", 0, 0), leave(), beneath("-", 3, 0, 0, 1), leave(),
          beneath(".", 5, 0, 0, 1)},
         "-X-..$\n"},
    });
}

TEST(Grid, BringsARowIntoUseByATextThatItsOwnFrameShows) {
    expectPages({
        {{enter(0, 2), draw("", 0, 0)}, ""},
        {{enter(0, 2), draw("ab", 0, 0, 0, 1)}, ""},
        {{enter(0, 2), draw("ab", 1, 0, 0, 0)}, ""},
        {{enter(0, 2), draw("ab", -2, 0)}, ""},
        {{enter(-2, 2), draw("ab", 0, 0)}, "$\n$\n$\n"},
        {{enter(1, 0), enter(-3, 1), draw("ab", 0, 0)}, " $\n $\n"},
        {{enter(1, 0), enter(-3, 1), draw("ab", 2, 0, 0, 1)}, " $\n b$\n"},
        {{enter(-1, 0), enter(1, 0), draw("ab", -1, 0)}, "b$\n"},
        // Covered is what is left of it.
        {{enter(2, 0), enter(-3, 0), draw("abcd", 0, 0), leave(), leave(),
          beneath(".", 6, 0, 0, 1)},
         "..d...$\n"},
        {{enter(2, 0), enter(-3, 0), draw("a", 0, 0), leave(), leave(), beneath(".", 3, 0, 0, 1)},
         "...$\n"},
    });
}

TEST(Grid, TouchesTheRowOfATextThatBeginsWithNul) {
    expectPages({
        {{draw(s_nul, 9, 1)}, "$\n$\n"},
        {{draw(s_nul, 3, 0, 0, 2)}, "$\n$\n"},
        {{draw(s_nul, -1, 0)}, ""},
        {{enter(2, 1), draw(s_nul, 3, 0)}, "$\n  $\n"},
        {{enter(2, 1), draw(s_nul, 0, 0), leave(), beneath(".", 3, 1, 0, 2)}, " ...$\n ...$\n"},
        {{draw("abcd", 0, 0), enter(2, 0), draw(s_nul, 0, 0)}, "abcd$\n"},
        // Another NUL ends it, also where it is repeated.
        {{draw(std::string("ab\0c", 4), 3, 0, 0, 1)}, "ab$\n"},
        {{draw(std::string("ab\0c", 4), 3, -2, 0, 1)}, ""},
    });
}

TEST(Grid, LeavesOutRowsAboveTheTop) {
    expectPages({
        {{draw("a", 0, -1)}, ""},
        {{draw("a", 2, 0, -2, 3)}, "aa$\n"},
        {{enter(0, 3), draw("a", 0, -1)}, ""},
        {{enter(0, -2), draw("a", 0, 0), draw("b", 0, 1)}, ""},
        {{enter(0, -2), draw("a", 0, 0), draw("c", 0, 2)}, "c$\n"},
        {{enter(1, -1), draw("a", 2, 0, 0, 3), leave(), beneath(".", 4, 0, -1, 3)},
         ".aa.$\n.aa.$\n"},
        {{enter(0, 1), enter(0, -2), draw("a", 1, 0, 0, 4)}, "$\na$\na$\n"},
    });
}

TEST(Grid, CountsInAFrameWhatWasDrawnInIt) {
    expectPages({
        {{draw("abcdef", 0, 0), enter(2, 0), draw("X", 1, 0)}, "ab Xef$\n"},
        {{draw("abcdef", 0, 0), enter(2, 0), draw("X", 1, 0), leave(), beneath(".", 5, 0, 0, 1)},
         ".. X.f$\n"},
        {{enter(4, 0), draw("Z", 0, 0), leave(), enter(0, 0), draw("ab", 0, 0), leave(),
          beneath(".", 6, 0, 0, 1)},
         "ab....$\n"},
        // In what was drawn in the frame itself, and in one within.
        {{draw("abcdef", 0, 0), enter(1, 0), draw("XX", 0, 0), enter(1, 0), draw("Y", 2, 0)},
         "aX  Yf$\n"},
        {{draw("abcdef", 0, 0), enter(1, 0), enter(1, 0), draw("Y", 0, 0), leave(),
          draw("Z", 3, 0)},
         "a Y Zf$\n"},
        {{draw("abcdef", 0, 1), enter(1, 0), enter(1, 1), draw("Y", 0, 0), leave(), leave(),
          beneath(".", 4, 1, 0, 2)},
         " ....$\na Y..f$\n"},
        {{enter(5, 0), draw(s_nul, 0, 0), leave(), enter(2, 0), draw("X", 0, 0), leave(),
          beneath(".", 4, 2, 0, 1)},
         "  X...$\n"},
    });
}

std::string rows(int count, std::string const& row) {
    std::string page;
    for (; count > 0; --count) page += row + "$\n";
    return page;
}

TEST(Grid, KeepsRowsThatAreNotInUseInTheInnermostFrame) {
    std::string const page = rows(80, "a  ") + "   b$\n";
    expectPages({{{draw("a", 1, 0, 0, 80), enter(3, 0), move(80), draw("b", 0, 80)}, page},
                 {{draw("a", 1, 0, 0, 80), enter(3, 0), draw(s_nul, 0, 49), move(80), move(80),
                   draw("b", 0, 80)},
                  page},
                 {{enter(2, 0), draw("a", 1, 1, 0, 80), enter(2, 80), move(0), draw("b", 0, 0)},
                  rows(80, "   a") + "    b$\n"}});
}

TEST(Grid, ForgetsTheRowsThatItMoves) {
    CellBudget budget(CellBudget::ofDocument(0));
    Grid grid(budget);
    grid.enter(1, 100);
    EXPECT_EQ(grid.originRow(), 100);
    grid.draw("a", 1, 0, 0, 100, {.foreground = 1});
    String page;
    grid.moveRowsTo(page, 160);
    EXPECT_EQ(shown(page), rows(100, "") + rows(60, " ^[[0m^[[31ma^[[0m"));
    page = "";
    grid.draw("bcd", 0, 300, {});
    grid.moveRowsTo(page, 2147483648);
    EXPECT_EQ(shown(page), rows(40, " ^[[0m^[[31ma^[[0m") + rows(200, " ") + " bcd$\n");
    page = "";
    grid.moveRowsTo(page);
    EXPECT_EQ(shown(page), "");
}

struct Random {
    std::mt19937 engine;

    /// From 0 to n - 1.
    int pick(int n) { return static_cast<int>(engine() % static_cast<unsigned>(n)); }
    bool chance(int n) { return pick(n) == 0; }

    /// One of so many texts, in a few cells, with any look.
    Step drawn(Step::Kind kind, int texts) {
        static std::string const s_texts[] = {s_nul, "a", "bc", {"d\0e", 3}, "", "fgh", "i j"};
        Step step = {kind, pick(12) - 4, pick(7) - 2, s_texts[pick(texts)]};
        step.times = chance(9) ? 0 : 1 + pick(5);
        step.height = chance(9) ? 0 : 1 + pick(3);
        if (chance(3)) step.look.background = static_cast<std::uint8_t>(pick(3));
        return step;
    }
};

/// Frames anywhere, over each other and out of the page, with something beneath many.
Steps randomSteps(unsigned seed) {
    Random random{std::mt19937(seed)};
    // Where few texts show anything, it matters what did not.
    int const texts = 1 + random.pick(random.pick(7) + 1);
    Steps steps;
    int depth = 0;
    for (int n = 4 + random.pick(30); n > 0; --n) {
        int const what = random.pick(5);
        if ((what < 2 && depth < 6) || (depth == 0 && !random.chance(4))) {
            steps.push_back(enter(random.pick(10) - 3, random.pick(6) - 2));
            ++depth;
        } else if (what == 2 && depth > 0) {
            steps.push_back(leave());
            --depth;
            for (int covered = random.pick(3); covered > 0; --covered) {
                steps.push_back(random.drawn(Step::Beneath, texts));
            }
        } else {
            steps.push_back(random.drawn(Step::Draw, texts));
        }
    }
    return closed(steps);
}

TEST(Grid, ShowsWhatCanvasesWould) {
    for (unsigned seed = 0; seed < 4000; ++seed) {
        Steps const steps = randomSteps(seed);
        ASSERT_EQ(pageOfGrid(steps), pageOfCanvases(steps)) << seed << '\n' << steps;
    }
}

/// Frames below one another, in each of which frames may overlap, and rows are moved out between
/// them.
Steps randomColumn(unsigned seed) {
    Random random{std::mt19937(seed)};
    Steps steps;
    std::vector<int> origins = {0};
    int bottom = 0;
    for (int n = 60 + random.pick(60); n > 0; --n) {
        int const what = random.pick(4);
        if (what == 0 && origins.size() < 6) {
            int const origin = bottom + random.pick(3);
            steps.push_back(enter(random.pick(6) - 1, origin - origins.back()));
            origins.push_back(origin);
        } else if (what == 1 && origins.size() > 1) {
            steps.push_back(leave());
            origins.pop_back();
        } else if (what == 2) {
            steps.push_back(enter(random.pick(4), bottom - origins.back()));
            for (int drawn = random.pick(4); drawn > 0; --drawn) {
                Step step = random.drawn(Step::Draw, 7);
                step.y = random.pick(12);
                if (random.chance(20)) step.times = 4000;
                steps.push_back(step);
            }
            steps.push_back(leave());
            Step step = random.drawn(Step::Beneath, 7);
            step.y = bottom - origins.back();
            step.height = random.pick(20);
            steps.push_back(step);
            bottom += 20;
        } else {
            steps.push_back(move(bottom - origins.back()));
        }
    }
    return closed(steps);
}

TEST(Grid, ShowsTheSameWhenRowsAreMovedEarly) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        Steps const steps = randomColumn(seed);
        ASSERT_EQ(pageOfGrid(steps), pageOfCanvases(steps)) << seed << '\n' << steps;
    }
}

}  // namespace
}  // namespace CLI::XML
