#pragma once

#include <string>

#include "galley/terminal/ColourDepth.h"
#include "web/flow/Look.h"

namespace galley {

/// An attribute of text, and the parameter of the sequence SGR that sets it.
struct Attribute {
    unsigned code;
    bool web::Look::*isSet;
};

/// In the order of the parameters.
constexpr Attribute s_attributes[] = {
    {1, &web::Look::isBold},       {2, &web::Look::isFaint},         {3, &web::Look::isItalic},
    {4, &web::Look::isUnderlined}, {5, &web::Look::isBlinking},      {7, &web::Look::isInverse},
    {8, &web::Look::isHidden},     {9, &web::Look::isStruckThrough},
};

/// The parameters of SGR, as in "1;31", that make text of the terminal's default look so, with the
/// nearest colours that there are; empty for that look.
std::string sgrParameters(web::Look const& look, ColourDepth depth);

}  // namespace galley
