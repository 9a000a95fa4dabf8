#pragma once

#include <string>
#include <string_view>

#include "galley/formats/PageWriter.h"

namespace galley {

/// Writes text with the sequences of a terminal. Each row begins and ends in the terminal's default
/// look, outside of links, and has no blanks at its end that show nothing.
class AnsiWriter final : public PageWriter {
public:
    AnsiWriter(String& page, ColourDepth colours) : out(page), depth(colours) {}

    void take(web::Row const& row) override;
    void finish() override {}

private:
    /// Bytes of a row up to the last that shows something.
    std::size_t shownLength(web::Row const& row) const;
    bool showsBlanks(web::Look const& look) const;
    void changeLook(web::Look const& look);
    void changeLink(web::Link const* next);

    String& out;
    ColourDepth const depth;
    /// What the terminal has now, and its parameters.
    web::Look current;
    std::string parameters;
    web::Link const* link = nullptr;
};

}  // namespace galley
