#include "galley/terminal/ColourDepth.h"

namespace galley {

namespace {

bool contains(std::string_view text, std::string_view part) {
    return text.find(part) != std::string_view::npos;
}

}  // namespace

ColourDepth colourDepth(std::string_view colorTerm, std::string_view term,
                        std::string_view noColor) {
    if (!noColor.empty() || term == "dumb") return ColourDepth::none;
    if (colorTerm == "truecolor" || colorTerm == "24bit") return ColourDepth::exact;
    // Variants have more behind that, such as "screen-256color-bce".
    if (contains(term, "-direct")) return ColourDepth::exact;
    return contains(term, "-256color") ? ColourDepth::cube256 : ColourDepth::sixteen;
}

}  // namespace galley
