#include "galley/formats/style.h"

namespace galley {

std::string attributeCss(web::Look const& look) {
    std::string css;
    if (look.isBold) css += "font-weight:bold;";
    if (look.isItalic) css += "font-style:italic;";
    if (look.isUnderlined || look.isStruckThrough) {
        css += "text-decoration:";
        if (look.isUnderlined) css += "underline";
        if (look.isUnderlined && look.isStruckThrough) css += ' ';
        if (look.isStruckThrough) css += "line-through";
        css += ';';
    }
    if (look.isBlinking) css += "animation:galley-blink 1s step-end infinite;";
    return css;
}

}  // namespace galley
