#include "galley/terminal/nearestColour.h"

#include <algorithm>
#include <iterator>

namespace galley {

using web::Colour;

namespace {

/// xterm's defaults.
constexpr Colour s_first16[] = {
    Colour::rgb(0, 0, 0),       Colour::rgb(205, 0, 0),     Colour::rgb(0, 205, 0),
    Colour::rgb(205, 205, 0),   Colour::rgb(0, 0, 238),     Colour::rgb(205, 0, 205),
    Colour::rgb(0, 205, 205),   Colour::rgb(229, 229, 229), Colour::rgb(127, 127, 127),
    Colour::rgb(255, 0, 0),     Colour::rgb(0, 255, 0),     Colour::rgb(255, 255, 0),
    Colour::rgb(92, 92, 255),   Colour::rgb(255, 0, 255),   Colour::rgb(0, 255, 255),
    Colour::rgb(255, 255, 255),
};

/// Of each channel of the cube.
constexpr std::uint8_t s_levels[] = {0, 95, 135, 175, 215, 255};
constexpr unsigned s_cubeStart = 16;
constexpr unsigned s_greyStart = 232;
constexpr int s_greys = 24;
/// Greys are so far apart, and the first has this value in each channel.
constexpr int s_greyStep = 10;
constexpr int s_firstGrey = 8;

/// In the space of the three channels, squared.
int distance(Colour a, Colour b) {
    int const red = a.red - b.red;
    int const green = a.green - b.green;
    int const blue = a.blue - b.blue;
    return red * red + green * green + blue * blue;
}

unsigned nearestLevel(std::uint8_t channel) {
    auto const isLess = [channel](int left, int right) {
        return std::abs(left - channel) < std::abs(right - channel);
    };
    auto const* const found = std::min_element(std::begin(s_levels), std::end(s_levels), isLess);
    return static_cast<unsigned>(found - std::begin(s_levels));
}

unsigned nearestGrey(Colour colour) {
    int const mean = (colour.red + colour.green + colour.blue) / 3;
    int const steps = (mean - s_firstGrey + s_greyStep / 2) / s_greyStep;
    return static_cast<unsigned>(std::clamp(steps, 0, s_greys - 1));
}

}  // namespace

std::uint8_t nearestOf16(Colour colour) {
    auto const isNearer = [colour](Colour left, Colour right) {
        return distance(left, colour) < distance(right, colour);
    };
    auto const* const found =
        std::min_element(std::begin(s_first16), std::end(s_first16), isNearer);
    return static_cast<std::uint8_t>(found - std::begin(s_first16));
}

// The nearest of the cube has the nearest level in each channel; the nearest grey is that to the
// mean of the channels.
std::uint8_t nearestOf256(Colour colour) {
    unsigned const red = nearestLevel(colour.red);
    unsigned const green = nearestLevel(colour.green);
    unsigned const blue = nearestLevel(colour.blue);
    unsigned const grey = nearestGrey(colour);
    auto const value = static_cast<std::uint8_t>(s_firstGrey + s_greyStep * static_cast<int>(grey));
    Colour const ofCube = Colour::rgb(s_levels[red], s_levels[green], s_levels[blue]);
    bool const isGrey =
        distance(Colour::rgb(value, value, value), colour) < distance(ofCube, colour);
    unsigned const number = isGrey ? s_greyStart + grey : s_cubeStart + 36 * red + 6 * green + blue;
    return static_cast<std::uint8_t>(number);
}

}  // namespace galley
