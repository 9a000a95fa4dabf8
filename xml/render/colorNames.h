#pragma once

#include <cstdint>
#include <string_view>

namespace CLI::XML {

struct ColorName {
    std::string_view name;
    std::uint8_t number;
};

/// The colours of SGR 30 to 37, by the names that style sheets use for them.
inline constexpr ColorName s_colorNames[] = {
    {"black", 0}, {"red", 1},      {"green", 2}, {"yellow", 3},
    {"blue", 4},  {"mangenta", 5}, {"cyan", 6},  {"white", 7},
};

}  // namespace CLI::XML
