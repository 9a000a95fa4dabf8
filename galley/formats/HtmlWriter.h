#pragma once

#include <string>

#include "galley/formats/HtmlStyle.h"
#include "galley/formats/PageWriter.h"
#include "galley/formats/cells.h"

namespace galley {

/// Writes a <pre> element with the colours of a terminal, which may stand in any HTML document,
/// several of them one after the other, or a document with one in it. Both are well-formed XML in
/// ASCII. What is no character, or a control character, becomes U+FFFD.
class HtmlWriter final : public PageWriter {
public:
    HtmlWriter(String& page, Options const& options, CellRule cellRule);

    void take(web::Row const& row) override;
    void describe(web::DocumentInfo const& document) override;
    void finish() override;

private:
    void changeLink(web::Link const* next);
    void writeText(std::string_view text);
    void writeWide(std::string_view text);
    void writeHead();

    String& out;
    CellRule const rule;
    bool const isDocument;
    /// Of the document; any bytes. The language may be unknown.
    ///@{
    std::string title;
    std::string language;
    ///@}
    HtmlStyle style;
    /// The rows; the rules that they need come before them.
    String rows;
    web::Link const* link = nullptr;
};

}  // namespace galley
