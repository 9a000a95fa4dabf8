#pragma once

#include <vector>

#include "web/flow/Row.h"

namespace galley::web {

/// Appends rows to a list.
class RowList final : public RowSink {
public:
    explicit RowList(std::vector<Row>& list) : rows(list) {}
    void take(Row const& row) override { rows.push_back(row); }

private:
    std::vector<Row>& rows;
};

}  // namespace galley::web
