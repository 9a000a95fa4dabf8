#pragma once

#include <string_view>
#include <vector>

namespace galley::web {

/// Of each element of a document, by the order of their start tags, whether it is the last one in
/// its parent. Of a document that is at fault, of the elements before the fault.
std::vector<bool> findLastChildren(std::string_view markup);

}  // namespace galley::web
