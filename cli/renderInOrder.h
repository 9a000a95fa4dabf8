#pragma once

#include <cstddef>
#include <functional>

#include "cli/render.h"

/// Makes `count` renderings, `jobs` of them at the same time, and hands them over in order, on the
/// calling thread, until `take` returns false. `make` is called on other threads if `jobs` is above
/// 1, and must not throw. At most 2 * `jobs` renderings behind the one that `take` has are made or
/// kept.
void renderInOrder(std::size_t count, unsigned jobs,
                   std::function<Rendering(std::size_t)> const& make,
                   std::function<bool(Rendering const&)> const& take);
