#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "web/flow/Row.h"

namespace galley::web {

/// Rows that are kept, one behind the other in the same memory.
class RowBlock final : public RowSink {
public:
    void take(Row const& row) override {
        ends.push_back(
            {bytes.size() + row.text().size(), spans.size() + row.spans().size(), row.width()});
        bytes += row.text();
        spans.insert(spans.end(), row.spans().begin(), row.spans().end());
    }

    std::size_t size() const { return ends.size(); }
    /// Until another row is taken.
    RowView operator[](std::size_t i) const {
        End const begin = i == 0 ? End() : ends[i - 1];
        End const& end = ends[i];
        return {std::string_view(bytes).substr(begin.byte, end.byte - begin.byte),
                std::span(spans).subspan(begin.span, end.span - begin.span), end.width};
    }
    /// Keeps the memory.
    void clear() {
        bytes.clear();
        spans.clear();
        ends.clear();
    }

private:
    /// Where a row ends.
    struct End {
        std::size_t byte = 0;
        std::size_t span = 0;
        int width = 0;
    };

    std::string bytes;
    std::vector<RowSpan> spans;
    std::vector<End> ends;
};

}  // namespace galley::web
