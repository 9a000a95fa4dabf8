#pragma once

#include <string>
#include <string_view>

namespace galley {

/// The address of a link in printable ASCII without blanks and quotation marks: all other bytes
/// become "%XX". What is encoded already stays as it is.
std::string encodeAddress(std::string_view address);

}  // namespace galley
