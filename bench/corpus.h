#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Bench {

/// How large a corpus is to be. It ends behind the part that reaches one of the two numbers; what
/// a part is, a paragraph or a level for example, depends on the shape.
struct Size {
    std::size_t bytes;
    std::size_t parts;
};

/// A document of one shape, and the sheet that goes with it.
struct Corpus {
    std::string markup;
    std::string sheet;
    /// Words in the text of the markup.
    std::size_t words = 0;
};

/// "1000" is a number of bytes, "1000x" a number of parts; nothing else is a size.
std::optional<Size> parseSize(std::string_view text);

/// The shapes there are.
std::vector<std::string_view> shapeNames();

/// The corpus of a shape: the same one for the same arguments, on every machine. None for a shape
/// that is not known.
std::optional<Corpus> makeCorpus(std::string_view shape, Size size);

}  // namespace Bench
