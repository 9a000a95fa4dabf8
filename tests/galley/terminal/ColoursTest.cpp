#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <vector>

#include "galley/terminal/ColourDepth.h"
#include "galley/terminal/nearestColour.h"

namespace galley {
namespace {

using web::Colour;

TEST(Colours, TheEnvironmentTellsHowManyThereAre) {
    struct Case {
        char const* colorTerm;
        char const* term;
        char const* noColor;
        ColourDepth depth;
    };
    constexpr Case s_cases[] = {
        {"truecolor", "xterm", "", ColourDepth::exact},
        {"24bit", "xterm-256color", "", ColourDepth::exact},
        {"yes", "xterm-256color", "", ColourDepth::cube256},
        {"", "xterm-256color", "", ColourDepth::cube256},
        {"", "screen-256color-bce", "", ColourDepth::cube256},
        {"", "xterm-direct", "", ColourDepth::exact},
        {"", "linux", "", ColourDepth::sixteen},
        {"", "xterm", "", ColourDepth::sixteen},
        {"", "", "", ColourDepth::sixteen},
        {"truecolor", "dumb", "", ColourDepth::none},
        {"", "dumb", "", ColourDepth::none},
        {"truecolor", "xterm-256color", "1", ColourDepth::none},
    };
    for (auto const& [colorTerm, term, noColor, depth] : s_cases) {
        EXPECT_EQ(colourDepth(colorTerm, term, noColor), depth)
            << colorTerm << ", " << term << ", " << noColor;
    }
}

int distance(Colour a, Colour b) {
    auto const square = [](int x) { return x * x; };
    return square(a.red - b.red) + square(a.green - b.green) + square(a.blue - b.blue);
}

/// xterm's colours from 16 on.
std::vector<Colour> cubeAndGreys() {
    std::vector<Colour> colours;
    colours.reserve(240);
    auto const level = [](int i) { return static_cast<std::uint8_t>(i == 0 ? 0 : 55 + 40 * i); };
    for (int i = 0; i < 216; ++i) {
        colours.push_back(Colour::rgb(level(i / 36), level(i / 6 % 6), level(i % 6)));
    }
    for (int i = 0; i < 24; ++i) {
        auto const grey = static_cast<std::uint8_t>(8 + 10 * i);
        colours.push_back(Colour::rgb(grey, grey, grey));
    }
    return colours;
}

TEST(Colours, NoneOf256IsNearerThanTheOneThatIsChosen) {
    std::vector<Colour> const all = cubeAndGreys();
    constexpr int s_step = 17;
    auto const channel = [](int i) { return static_cast<std::uint8_t>(i % 16 * s_step); };
    for (int i = 0; i < 16 * 16 * 16; ++i) {
        Colour const asked = Colour::rgb(channel(i / 256), channel(i / 16), channel(i));
        int least = INT_MAX;
        for (Colour const candidate : all) least = std::min(least, distance(asked, candidate));
        std::uint8_t const number = nearestOf256(asked);
        ASSERT_GE(number, 16);
        ASSERT_EQ(distance(asked, all[number - 16U]), least) << "colour " << i;
    }
}

TEST(Colours, ColoursBecomeThoseOf16ThatAPersonWouldName) {
    struct Case {
        Colour colour;
        unsigned number = 0;
    };
    constexpr Case s_cases[] = {
        {Colour::rgb(0, 0, 0), 0},        {Colour::rgb(180, 10, 10), 1},
        {Colour::rgb(0, 170, 30), 2},     {Colour::rgb(0, 0, 200), 4},
        {Colour::rgb(128, 128, 128), 8},  {Colour::rgb(220, 220, 220), 7},
        {Colour::rgb(255, 20, 20), 9},    {Colour::rgb(250, 250, 40), 11},
        {Colour::rgb(100, 100, 255), 12}, {Colour::rgb(255, 255, 255), 15},
    };
    for (auto const& [colour, number] : s_cases) {
        EXPECT_EQ(nearestOf16(colour), number) << +colour.red << " " << +colour.green;
    }
}

}  // namespace
}  // namespace galley
