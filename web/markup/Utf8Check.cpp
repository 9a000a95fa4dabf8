#include "web/markup/Utf8Check.h"

#include <algorithm>

#include "web/text/utf8.h"
#include "web/wording.h"

namespace galley::web {

void Utf8Check::check(std::string_view part, std::size_t offset) {
    std::size_t const end = offset + part.size();
    std::size_t from = std::max(offset, nextLine);
    while (from < end) {
        std::size_t const found = findIllFormed(part, from - offset);
        if (found == std::string_view::npos) return;
        warn(problems, offset + found, "bytes that are no UTF-8 are shown as U+FFFD");
        nextLine = std::min(source.find('\n', offset + found), source.size());
        from = nextLine;
    }
}

}  // namespace galley::web
