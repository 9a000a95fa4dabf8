// Style sheets, as text and as what elements get of them.

#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/check.h"
#include "xml/css/parseCss.h"

namespace CLI::XML {
namespace {

/// The rules as text, every name and value with its length.
std::string textOf(StyleList const& rules) {
    std::string text;
    auto const add = [&text](String const& part) {
        text += std::to_string(part.length());
        text += ' ';
        text += part.view();
    };
    for (ZRLWPtr<StyleNode> const& rule : rules) {
        require(rule->refCount == 1, "a list has the only reference to its rules");
        add(rule->selector);
        auto const& declarations = rule->declarations;
        for (auto const* node = declarations.head.prev; node != &declarations.head;
             node = node->prev) {
            String found;
            require(declarations.get(node->key, found) && found == node->value,
                    "a declaration is found by its name");
            add(node->key);
            add(node->value);
        }
    }
    return text;
}

void parse(String const& sheet) {
    StyleList first;
    StyleList second;
    XCode const result = parseCss(first, sheet);
    requireMessage(result);
    std::string const text = textOf(first);
    XCode const again = parseCss(second, sheet);
    require(again.getString() == result.getString(), "the same sheet gives the same message");
    require(textOf(second) == text, "the same sheet gives the same rules");
    require(parseCss(second, "") && second.count == 0, "an empty sheet empties the list");
    // A rule in front changes nothing behind it but the lines.
    if (!result || sheet.length() > 10'000) return;
    XCode const behind = parseCss(second, String("before {} ") += sheet);
    require(behind && second.count == first.count + 1, "rules do not depend on those before them");
    require(textOf(second) == "6 before" + text, "rules do not depend on those before them");
}

}  // namespace
}  // namespace CLI::XML

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    String sheet;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are the text
    sheet.assign({reinterpret_cast<char const*>(data), size});
    CLI::XML::parse(sheet);
    return 0;
}
