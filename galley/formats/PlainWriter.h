#pragma once

#include "galley/formats/PageWriter.h"

namespace galley {

/// Writes bare text, without blanks at the ends of rows.
class PlainWriter final : public PageWriter {
public:
    explicit PlainWriter(String& page) : out(page) {}

    void take(web::Row const& row) override;
    void finish() override {}

private:
    String& out;
};

}  // namespace galley
