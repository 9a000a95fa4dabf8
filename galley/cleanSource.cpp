#include "galley/cleanSource.h"

#include <string_view>

#include "galley/terminal/controls.h"

namespace galley {

bool cleanSource(String& text, bool isRaw) {
    constexpr std::string_view mark = "\xef\xbb\xbf";
    bool const hasMark = text.view().starts_with(mark);
    if (hasMark) text.deleteRegion(0, mark.length());
    bool const hasControls = !isRaw && replaceControls(text);
    return hasMark || hasControls;
}

}  // namespace galley
