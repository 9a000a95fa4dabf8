#pragma once

#include "web/Style.h"
#include "web/css/keywords.h"

namespace galley::web {

/// The values of properties that are one word, and such words in values of others.

constexpr Keyword<Display> s_displays[] = {
    {"none", Display::none},
    {"block", Display::block},
    {"inline", Display::inlined},
    {"list-item", Display::listItem},
    {"table", Display::table},
    {"table-header-group", Display::headerGroup},
    {"table-row-group", Display::rowGroup},
    {"table-footer-group", Display::footerGroup},
    {"table-row", Display::row},
    {"table-cell", Display::cell},
    {"table-column-group", Display::columnGroup},
    {"table-column", Display::column},
    {"table-caption", Display::caption},
    {"flow-root", Display::block, true},
    {"flex", Display::block, true},
    {"grid", Display::block, true},
    {"inline-block", Display::inlined, true},
    {"inline-flex", Display::inlined, true},
    {"inline-grid", Display::inlined, true},
    {"inline-table", Display::inlined, true},
    {"contents", Display::inlined, true},
};

constexpr Keyword<TextAlign> s_textAligns[] = {
    {"left", TextAlign::left}, {"start", TextAlign::left},    {"right", TextAlign::right},
    {"end", TextAlign::right}, {"center", TextAlign::centre}, {"justify", TextAlign::justify},
};

constexpr Keyword<TextTransform> s_textTransforms[] = {
    {"none", TextTransform::none},
    {"uppercase", TextTransform::uppercase},
    {"lowercase", TextTransform::lowercase},
    {"capitalize", TextTransform::capitalize},
};

constexpr Keyword<VerticalAlign> s_verticalAligns[] = {
    {"baseline", VerticalAlign::baseline},       {"top", VerticalAlign::top},
    {"middle", VerticalAlign::middle},           {"bottom", VerticalAlign::bottom},
    {"sub", VerticalAlign::baseline, true},      {"super", VerticalAlign::baseline, true},
    {"text-top", VerticalAlign::baseline, true}, {"text-bottom", VerticalAlign::baseline, true},
};

constexpr Keyword<WhiteSpace> s_whiteSpaces[] = {
    {"normal", WhiteSpace::normal},    {"nowrap", WhiteSpace::nowrap},
    {"pre", WhiteSpace::pre},          {"pre-wrap", WhiteSpace::preWrap},
    {"pre-line", WhiteSpace::preLine}, {"break-spaces", WhiteSpace::preWrap, true},
};

constexpr Keyword<OverflowWrap> s_overflowWraps[] = {
    {"normal", OverflowWrap::normal},
    {"anywhere", OverflowWrap::anywhere},
    {"break-word", OverflowWrap::breakWord},
};

constexpr Keyword<WordBreak> s_wordBreaks[] = {
    {"normal", WordBreak::normal},
    {"keep-all", WordBreak::keepAll},
    {"break-all", WordBreak::breakAll},
};

constexpr Keyword<MarkerPosition> s_markerPositions[] = {
    {"outside", MarkerPosition::outside},
    {"inside", MarkerPosition::inside},
};

constexpr Keyword<CaptionSide> s_captionSides[] = {
    {"top", CaptionSide::top},
    {"bottom", CaptionSide::bottom},
};

constexpr Keyword<Visibility> s_visibilities[] = {
    {"visible", Visibility::visible},
    {"hidden", Visibility::hidden},
    {"collapse", Visibility::collapse},
};

constexpr Keyword<MarkerKind> s_markerKinds[] = {
    {"none", MarkerKind::none},
    {"disc", MarkerKind::disc},
    {"circle", MarkerKind::circle},
    {"square", MarkerKind::square},
    {"decimal", MarkerKind::decimal},
    {"decimal-leading-zero", MarkerKind::decimalLeadingZero},
    {"lower-alpha", MarkerKind::lowerAlpha},
    {"lower-latin", MarkerKind::lowerAlpha},
    {"upper-alpha", MarkerKind::upperAlpha},
    {"upper-latin", MarkerKind::upperAlpha},
    {"lower-roman", MarkerKind::lowerRoman},
    {"upper-roman", MarkerKind::upperRoman},
    {"lower-greek", MarkerKind::lowerGreek},
};

constexpr Keyword<LineKind> s_lineKinds[] = {
    {"none", LineKind::none},      {"hidden", LineKind::hidden}, {"solid", LineKind::solid},
    {"double", LineKind::twofold}, {"dashed", LineKind::dashed}, {"dotted", LineKind::dotted},
    {"groove", LineKind::solid},   {"ridge", LineKind::solid},   {"inset", LineKind::solid},
    {"outset", LineKind::solid},
};

constexpr Keyword<FontWeight> s_fontWeights[] = {
    {"normal", {400}},
    {"bold", {700}},
    {"lighter", FontWeight::lighter()},
    {"bolder", FontWeight::bolder()},
};

constexpr Keyword<Decoration> s_decorationLines[] = {
    {"underline", {true, false}},
    {"line-through", {false, true}},
    {"overline", {}, true},
    {"blink", {}, true},
};

constexpr Keyword<bool> s_borderCollapses[] = {{"separate", false}, {"collapse", true}};
constexpr Keyword<bool> s_tableLayouts[] = {{"auto", false}, {"fixed", true}};
constexpr Keyword<bool> s_fontStyles[] = {{"normal", false}, {"italic", true}, {"oblique", true}};

}  // namespace galley::web
