#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "web/Element.h"
#include "web/Problem.h"
#include "web/css/Declarations.h"
#include "web/suggest.h"

namespace galley::web {

/// What the attributes of an element declare. It is read once for each value.
class AttributeReader {
public:
    /// The declarations of one element, which the reader owns until it is emptied.
    struct Found {
        /// Of attributes that have a property's name, in their order.
        std::vector<Declarations const*> presentational;
        /// Of the `style` attribute; null without.
        DeclarationBlock const* style = nullptr;
    };

    /// Warnings, with their places in the document, are appended to `found`, which must outlive the
    /// reader.
    explicit AttributeReader(std::vector<Problem>& found) : problems(found) {}

    /// Replaces `found` by what the element's attributes declare.
    void read(Element const& element, Found& found);

    /// Values that are remembered.
    std::size_t size() const { return known.size(); }
    void clear() { known.clear(); }

private:
    struct Value {
        DeclarationBlock block;
        /// With places in the value.
        std::vector<Problem> problems;
        /// Which of them is the one about fonts.
        std::optional<std::size_t> fontProblem;
    };

    Value const& valueOf(Attribute const& attribute, Property const* property);
    /// What an attribute was probably meant to be, to be appended to a warning.
    std::string nameMeant(std::string_view name);
    Value parse(std::string_view text, Property const* property);
    /// Says what is wrong with a value, at the place where it is.
    void report(Value const& value, std::size_t offset);

    std::vector<Problem>& problems;
    /// By name and value, with a byte between them that is in neither.
    std::unordered_map<std::string, Value> known;
    std::string key;
    bool hasWarnedOfFonts = false;
    Suggester suggester;
};

}  // namespace galley::web
