#pragma once

/// Marks what programs outside of the library may use; all else stays hidden in it.
#define GALLEY_EXPORT __attribute__((visibility("default")))
