#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "web/flow/Look.h"

namespace galley::web {

/// Cells of a row that look alike.
struct RowSpan {
    /// Bytes of the row's text.
    std::size_t begin = 0;
    std::size_t end = 0;
    Look look = {};
};

/// A row that is elsewhere.
struct RowView {
    std::string_view text;
    std::span<RowSpan const> spans;
    /// In cells.
    int width = 0;

    std::string_view textOf(RowSpan const& span) const {
        return text.substr(span.begin, span.end - span.begin);
    }
};

/// A row of a page, from its left edge to the last column that is drawn.
///
/// 1. The spans cover the text from left to right, none is empty, and neighbours differ in looks.
/// 2. The text is well-formed UTF-8 without controls, and takes `width()` cells.
class Row {
public:
    using Span = RowSpan;

    /// In cells.
    int width() const { return cells; }
    std::string_view text() const { return bytes; }
    std::string_view textOf(Span const& span) const { return view().textOf(span); }
    std::vector<Span> const& spans() const { return all; }
    /// Until the row changes.
    RowView view() const { return {bytes, all, cells}; }

    /// Adds text behind what is there; `printed` takes that many cells.
    void add(std::string_view printed, int columns, Look const& look);
    /// Adds blanks up to a column, where that is not reached yet. Throws `PageTooLarge` where it is
    /// further right than any page is wide.
    void fill(int column, Look const& look);
    /// Adds another row behind what is there: what stands on `ground` in that stands on `shown`
    /// now.
    ///@{
    void add(RowView const& other, Colour ground, Colour shown);
    void add(RowView const& other) { add(other, {}, {}); }
    ///@}
    /// How another row is drawn over one.
    struct Manner {
        /// What stands on this one in it has no background of its own.
        Colour ground;
        /// On which there are blanks behind the row.
        Colour beyond;
        /// Borders in the row stay where there is no more over them than a background.
        bool keepsBorders = false;
        bool isAmbiguousWide = false;
    };
    /// Puts another row over what is there, from a column on: backgrounds, text, and borders, but
    /// these not over text. A wide character of which half is covered becomes a blank.
    void draw(int column, RowView const& other, Manner const& manner);
    void clear();

private:
    void close(Look const& look, std::size_t end);

    std::string bytes;
    std::vector<Span> all;
    int cells = 0;
};

/// Takes the rows of a page, or of a part of one, from the top down.
class RowSink {
public:
    virtual ~RowSink() = default;
    virtual void take(Row const& row) = 0;
};

}  // namespace galley::web
