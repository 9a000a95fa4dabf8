#pragma once

// Made by scripts/web-pairs, which asks Chromium.
// clang-format off

#include <string_view>

namespace galley::web {

/// A line may break between any of `before` and any of `behind`.
struct AsciiPairs {
    std::string_view before;
    std::string_view behind;
};

/// With `word-break: normal` and `keep-all`. Between `-` and a digit only behind a letter or a digit.
inline constexpr AsciiPairs s_normalPairs[] = {
    {"!\"#%&)*+,.:;=>\\]|}~",
     "(<[{"},
    {"-",
     "\"#%&'(*+-0123456789<=>@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\^_`abcdefghijklmnopqrstuvwxyz{|~"},
    {"?",
     "#$%&(*+-0123456789<=>@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\^_`abcdefghijklmnopqrstuvwxyz{|~"},
};

/// With `word-break: break-all`.
inline constexpr AsciiPairs s_breakAllPairs[] = {
    {"!%?",
     "#$%&(*+-0123456789<=>@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\^_`abcdefghijklmnopqrstuvwxyz{|~"},
    {"\"",
     "(<[{"},
    {"#&)*+/0123456789<=>@ABCDEFGHIJKLMNOPQRSTUVWXYZ]^_`abcdefghijklmnopqrstuvwxyz|}~",
     "#$&(*+-0123456789<=>@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\^_`abcdefghijklmnopqrstuvwxyz{|~"},
    {"$",
     "%"},
    {",.:;",
     "#&(*+-0123456789<=>@ABCDEFGHIJKLMNOPQRSTUVWXYZ[^_`abcdefghijklmnopqrstuvwxyz{|~"},
    {"-",
     "\"#%&'(*+-0123456789<=>@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\^_`abcdefghijklmnopqrstuvwxyz{|~"},
    {"\\",
     "%(<[{"},
};

}  // namespace galley::web
