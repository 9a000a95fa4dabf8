#pragma once

#include <string>

#include "galley/galley.h"

/// Columns of what `--help` prints: those of the terminal or what stands for it, but not so many
/// that lines are hard to read.
unsigned helpWidth();

/// What `--help` prints, as a document that suits a width in columns.
std::string helpDocument(unsigned width);
galley::Sheet helpSheet();
