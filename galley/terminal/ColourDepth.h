#pragma once

#include <string_view>

namespace galley {

/// How many colours a terminal has.
enum class ColourDepth {
    none,
    sixteen,  ///< its own, by their numbers
    cube256,  ///< xterm's 256: those, a cube of 6 by 6 by 6 and 24 greys
    exact,    ///< 24 bits
};

/// What the values of COLORTERM, TERM and NO_COLOR promise, each empty where it is not set.
ColourDepth colourDepth(std::string_view colorTerm, std::string_view term,
                        std::string_view noColor);

}  // namespace galley
