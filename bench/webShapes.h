#pragma once

#include <span>

#include "bench/CorpusWriter.h"

namespace Bench {

/// Shapes of the dialect web alone.
std::span<Shape const> webShapes();

}  // namespace Bench
