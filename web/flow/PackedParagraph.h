#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace galley::web {

class Paragraph;

/// A paragraph that is kept: what lines are made of, in one piece of memory.
class PackedParagraph {
public:
    explicit PackedParagraph(Paragraph const& paragraph);

    /// Makes another paragraph what this one was.
    void unpackTo(Paragraph& paragraph) const;

private:
    std::uint32_t elementCount;
    std::uint32_t itemCount;
    std::uint32_t textSize;
    std::uint32_t contentEnd;
    /// Elements, items and text, in this order.
    std::unique_ptr<std::byte[]> memory;
};

}  // namespace galley::web
