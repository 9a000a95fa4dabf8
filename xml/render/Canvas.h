#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

#include "../../base/String.h"
#include "../../base/ZRVector.h"
#include "../../base/export.h"

namespace CLI::XML {

/// A grid of character cells, one byte of text each. Coordinates are cell indices from the top
/// left: column x, row y. What would lie left of column 0 or above row 0 is clipped.
///
/// 1. Entry 0 of `attributeTable` is the default value; no value occurs twice; entries are never
///    removed or changed.
/// 2. Rows are ragged: each is as long as the cells written or padded into it. Rows and cells are
///    never removed.
/// 3. Cells that only fill the way to a position further right are spaces with the default value.
class GALLEY_EXPORT Canvas {
public:
    /// What a cell looks like, as one 32-bit value whose top byte is 0.
    struct Attributes {
        /// What a terminal can do to a character, one bit each.
        enum Flag : std::uint8_t {
            Bold = 0x01,
            Faint = 0x02,
            Italic = 0x04,
            Underline = 0x08,
            Blink = 0x10,
            Inverse = 0x20,
            Hidden = 0x40,
        };
        /// Stands for the terminal's own colour.
        static constexpr std::uint8_t NoColor = 255;

        std::uint8_t flags = 0;             ///< Any number of `Flag`.
        std::uint8_t foreground = NoColor;  ///< A colour's number.
        std::uint8_t background = NoColor;  ///< A colour's number.
        std::uint8_t unused = 0;            ///< Stays 0.

        /// At once: cells are compared one after the other.
        bool operator==(Attributes const& other) const {
            return std::bit_cast<std::uint32_t>(*this) == std::bit_cast<std::uint32_t>(other);
        }

        /// The number, 0 to 7, of a terminal colour's name; `NoColor` for any other text.
        static std::uint8_t color(String const& name);
        /// The escape sequences that switch a terminal from `previous` to this value: nothing
        /// between equal values, otherwise a reset and the whole new state.
        String generateFormattingFrom(Attributes const& previous) const;
    };

    /// One cell. The index has as many bits as an attribute value has, so that it can number
    /// every one of them.
    struct Byte {
        /// The byte shown; 0 shows nothing.
        std::uint32_t character : 8;
        /// Into `attributeTable`.
        std::uint32_t attributeIndex : 24;

        /// A cell; of the index the lower 24 bits count.
        static Byte make(unsigned char shown, unsigned index) { return {shown, index & 0xFFFFFF}; }
    };

    /// As a column: the current width. As a row: a new one below the last.
    static constexpr unsigned AppendPosition = 0xFFFFFFFF;

    /// The distinct attribute values that the cells refer to.
    ZRVector<Attributes> attributeTable;
    /// Top row first.
    ZRVector<ZRVector<Byte>> rows;

    /// Without rows.
    Canvas() { attributeTable.add(Attributes()); }
    Canvas(Canvas const&) = delete;
    Canvas& operator=(Canvas const&) = delete;
    ~Canvas() = default;

    /// Length of the longest row, in cells; 0 without rows.
    unsigned getWidth() const;
    /// The index of the value in `attributeTable`, to which it is added where it is missing.
    unsigned getOrStoreAttribute(Attributes const& attributes);

    /// Writes the bytes of `text`, up to a NUL, from (x, y) rightwards over whatever is there.
    /// Any other value above 2147483647 is a negative position. Returns false, with nothing
    /// changed, when there is no text or all of it is clipped.
    bool draw(String text, unsigned x, unsigned y, Attributes const& attributes);
    /// Composes every cell of `source`, another canvas, onto this one, its top left corner at
    /// (x, y). Source cells replace target cells, spaces too. Returns whether `source` has a cell
    /// that is not clipped.
    bool draw(Canvas const& source, unsigned x, unsigned y);

    /// `draw` at a position that may be negative.
    ///@{
    bool drawClipped(std::string_view text, int x, int y, Attributes const& attributes);
    bool drawClipped(Canvas const& source, int x, int y);
    ///@}

    /// The grid as text with escape sequences, `lineSeparator` behind every row. Every row begins
    /// and ends in the default attributes.
    String dump(String const& lineSeparator) const;
};

static_assert(sizeof(Canvas::Attributes) == 4 && sizeof(Canvas::Byte) == 4);

}  // namespace CLI::XML
