#pragma once

#include <optional>

#include "web/Style.h"
#include "web/css/ValueReader.h"

namespace galley::web {

enum class Axis { across, down };

/// A number or a dimension in CSS pixels; a bare number is cells of the axis.
std::optional<double> toPixels(Token const& token, Axis axis);
/// Whether lengths may have this unit.
bool isUnit(std::string_view name);

/// The nearest number of cells, of two the greater.
std::int32_t nearestCells(double pixels, Axis axis);

/// Each reads a value of the property that it is named after.
template <Axis axis>
bool readMargin(ValueReader& reader, Length& margin);
template <Axis axis>
bool readPadding(ValueReader& reader, Length& padding);
bool readWidth(ValueReader& reader, Length& width);
bool readMaxWidth(ValueReader& reader, Length& width);
bool readTextIndent(ValueReader& reader, Length& indent);
bool readTabSize(ValueReader& reader, std::int32_t& cells);
bool readBorderSpacing(ValueReader& reader, BorderSpacing& spacing);
bool readThickness(ValueReader& reader, Thickness& thickness);
/// One radius of one corner: whether it is rounded.
bool readRadius(ValueReader& reader, bool& isRounded);

}  // namespace galley::web
