// The text of a canvas: its rows with the escape sequences between cells that look different.

#include <algorithm>

#include "base/saturate.h"
#include "xml/render/Canvas.h"
#include "xml/render/cellBlocks.h"

namespace CLI::XML {

namespace {

/// Repeats what `text` has from `start` on until it is there `times` times. False where there is no
/// memory for it.
bool repeatEnd(String& text, int start, unsigned times) {
    // In pieces that are appended fast, one of them smaller.
    constexpr int s_pieceLength = 65536;
    String const once = text.substring(start, text.length());
    if (once.length() == 0) return false;
    auto const inPiece = static_cast<unsigned>(std::max(1, s_pieceLength / once.length()));
    String const piece = String::repeat(once, std::min(inPiece, times - 1));
    bool isComplete = piece.length() > 0;
    for (unsigned left = times - 1; left > 0 && isComplete;) {
        unsigned const now = std::min(left, inPiece);
        auto const length = std::size_t{now} * static_cast<std::size_t>(once.length());
        isComplete = text.appendGrowing(piece.view().substr(0, length));
        left -= now;
    }
    return isComplete;
}

}  // namespace

template <class Sink>
void Canvas::writeRow(ZRVector<Byte> const& row, unsigned times, Sink const& sink) const {
    char piece[s_cellsInBlock * 16];
    std::size_t filled = 0;
    auto const flush = [&] {
        if (filled > 0) sink(std::string_view(piece, filled));
        filled = 0;
    };
    auto const writeEscapes = [&](std::string_view sequences) {
        if (budget != nullptr) {
            if (!budget->suffices(sequences.length() * times)) return;
            budget->take(sequences.length() * times);
        }
        sink(sequences);
    };
    unsigned current = 0;
    for (Byte const* cell = row.begin(); cell != row.end();) {
        if (cell->attributeIndex != current) {
            flush();
            Attributes const& previous = attributeTable[current];
            current = cell->attributeIndex;
            writeEscapes(attributeTable[current].generateFormattingFrom(previous).view());
        }
        if (sizeof piece - filled < s_cellsInBlock) flush();
        auto const left = std::min(static_cast<std::size_t>(row.end() - cell), s_cellsInBlock);
        Byte const* const end = cell + left;
        if (left == s_cellsInBlock && readBlock(cell, current, piece + filled)) {
            filled += left;
            cell = end;
        }
        for (; cell != end && cell->attributeIndex == current; ++cell) {
            piece[filled] = static_cast<char>(cell->character);
            filled += cell->character != 0 ? 1 : 0;
        }
    }
    flush();
    if (current != 0) writeEscapes("\x1b[0m");
}

String Canvas::dump(String const& lineSeparator) const {
    // Measured first, so that the text is written into one buffer.
    std::int64_t length = 0;
    for (unsigned i = 0; i < rows.count; ++i) {
        std::int64_t const times = rowsAt(i);
        length += lineSeparator.length() * times;
        writeRow(rows[i], 0, [&](std::string_view piece) {
            length += static_cast<std::int64_t>(piece.length()) * times;
        });
    }
    String result;
    if (!result.reserve(saturate(length))) return result;
    for (unsigned i = 0; i < rows.count; ++i) {
        for (unsigned times = rowsAt(i); times > 0; --times) {
            writeRow(rows[i], 0, [&result](std::string_view piece) {
                result.concat(piece.data(), static_cast<int>(piece.length()));
            });
            result += lineSeparator;
        }
    }
    return result;
}

bool Canvas::moveRowsTo(String& text, unsigned y) {
    std::uint64_t end = std::min(std::uint64_t{y}, endOfRows());
    // Rows that were drawn in around the origin only get fillers once something is drawn below.
    if (!frames.empty()) end = std::min(end, std::uint64_t{frames.back().end});
    if (end <= movedRows) return true;
    unsigned const moved = runs.empty() ? static_cast<unsigned>(end - movedRows) : cutAt(end);
    bool isComplete = true;
    auto const append = [&](std::string_view piece) {
        isComplete = text.appendGrowing(piece) && isComplete;
    };
    for (unsigned i = 0; i < moved; ++i) {
        ZRVector<Byte>& row = rows.data[i];
        unsigned const times = runs.empty() ? 1 : rowsAt(i);
        int const start = text.length();
        writeRow(row, times, append);
        append("\n");
        if (times > 1) isComplete = repeatEnd(text, start, times) && isComplete;
        row.count = 0;
        spareRows.push_back(std::move(row));
    }
    for (unsigned i = moved; i < rows.count; ++i) rows.data[i - moved] = std::move(rows.data[i]);
    rows.count -= moved;
    if (!runs.empty()) {
        std::erase_if(runs, [moved](Run const& run) { return run.index < moved; });
        for (Run& run : runs) run.index -= moved;
        repeatedRows -= end - movedRows - moved;
    }
    movedRows = static_cast<unsigned>(end);
    return isComplete;
}

}  // namespace CLI::XML
