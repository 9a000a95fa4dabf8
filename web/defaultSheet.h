#pragma once

#include <string_view>

namespace galley::web {

/// The text of `web/default.css`, the sheet under all others.
std::string_view defaultSheetText();

}  // namespace galley::web
