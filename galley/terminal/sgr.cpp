#include "galley/terminal/sgr.h"

#include <initializer_list>

#include "galley/terminal/nearestColour.h"

namespace galley {

using web::Colour;

namespace {

/// The first of the codes of text colours, and of backgrounds.
constexpr unsigned s_text = 30;
constexpr unsigned s_background = 40;
/// From the codes of the first eight colours to those of the bright ones.
constexpr unsigned s_toBright = 60;

void add(std::string& parameters, std::initializer_list<unsigned> numbers) {
    for (unsigned const number : numbers) {
        if (!parameters.empty()) parameters += ';';
        parameters += std::to_string(number);
    }
}

void addColour(std::string& parameters, Colour colour, unsigned first, ColourDepth depth) {
    if (depth == ColourDepth::none) return;
    bool const isExact = colour.kind == Colour::Kind::rgb;
    if (!isExact && colour.kind != Colour::Kind::palette) return;
    if (isExact && depth == ColourDepth::exact) {
        add(parameters, {first + 8, 2, colour.red, colour.green, colour.blue});
    } else if (isExact && depth == ColourDepth::cube256) {
        add(parameters, {first + 8, 5, nearestOf256(colour)});
    } else {
        unsigned const number = isExact ? nearestOf16(colour) : colour.red;
        add(parameters, {first + number % 8 + (number < 8 ? 0 : s_toBright)});
    }
}

}  // namespace

std::string sgrParameters(web::Look const& look, ColourDepth depth) {
    std::string parameters;
    for (auto const& [code, isSet] : s_attributes) {
        if (look.*isSet) add(parameters, {code});
    }
    addColour(parameters, look.text, s_text, depth);
    addColour(parameters, look.background, s_background, depth);
    return parameters;
}

}  // namespace galley
