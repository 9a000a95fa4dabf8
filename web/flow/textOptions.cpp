#include "web/flow/textOptions.h"

namespace galley::web {

TextOptions textOptions(Style const& style) {
    TextOptions options;
    options.isAmbiguousWide = style.cells.isAmbiguousWide;
    switch (style.whiteSpace) {
        case WhiteSpace::normal:
        case WhiteSpace::nowrap:
            options.whiteSpace = TextOptions::WhiteSpace::collapsed;
            break;
        case WhiteSpace::preLine:
            options.whiteSpace = TextOptions::WhiteSpace::lines;
            break;
        case WhiteSpace::pre:
        case WhiteSpace::preWrap:
            options.whiteSpace = TextOptions::WhiteSpace::preserved;
            break;
    }
    switch (style.wordBreak) {
        case WordBreak::normal:
            options.wordBreak = TextOptions::WordBreak::normal;
            break;
        case WordBreak::keepAll:
            options.wordBreak = TextOptions::WordBreak::keepAll;
            break;
        case WordBreak::breakAll:
            options.wordBreak = TextOptions::WordBreak::breakAll;
            break;
    }
    return options;
}

}  // namespace galley::web
