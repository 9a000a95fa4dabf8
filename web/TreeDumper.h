#pragma once

#include <string>
#include <vector>

#include "web/PageBuilder.h"

namespace galley::web {

/// Writes the elements of a document while a builder makes its page, which knows their styles: one
/// a row with what its style declares, text in rows of its own, all indented by their depth.
class TreeDumper final : public DocumentHandler {
public:
    /// Both outlive it.
    TreeDumper(PageBuilder& page, std::string& tree) : builder(page), out(tree) {}

    void styleSheet(EmbeddedSheet const& sheet) override { builder.styleSheet(sheet); }
    bool asksForLastChild() override { return builder.asksForLastChild(); }
    void startElement(Element& element) override;
    void text(std::string_view decoded) override;
    void title(std::string_view decoded) override { builder.title(decoded); }
    void endElement(Element& element) override;

private:
    void openImplied(Element const* innermost);
    void write(Element const& element);
    std::string indent() const { return std::string(2 * open.size(), ' '); }

    PageBuilder& builder;
    std::string& out;
    std::vector<Element const*> open;
};

}  // namespace galley::web
