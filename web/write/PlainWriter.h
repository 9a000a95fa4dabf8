#pragma once

#include <string>

#include "web/flow/Row.h"

namespace galley::web {

/// Writes rows as bare text, without blanks at their ends, each ended by a line feed.
class PlainWriter final : public RowSink {
public:
    explicit PlainWriter(std::string& page) : out(page) {}

    void take(Row const& row) override {
        out += row.text();
        std::size_t const last = out.find_last_not_of(' ');
        out.resize(last == std::string::npos ? 0 : last + 1);
        out += '\n';
    }

private:
    std::string& out;
};

}  // namespace galley::web
