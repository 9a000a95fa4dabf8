#pragma once

#include <memory>
#include <vector>

#include "web/css/properties.h"

namespace galley::web {

/// A part of a style: what declarations give to an element, whatever else it has.
class Declarations {
public:
    bool isEmpty() const { return entries.empty(); }

    /// Declares a property after all others. False, and nothing has changed, where the tokens are
    /// no value of it.
    bool declare(Property const& property, ValueReader value);

    /// Gives the style of an element what is declared; `parent` is that of its parent, or the
    /// initial one.
    void applyTo(Style& style, Style const& parent) const;

private:
    /// One is applied after another, so that shorthands and what they stand for may mix.
    struct Entry {
        Property const* property;
        /// Whether the value is the parent's, and not in `values`.
        bool isParents;
    };

    Style& ownValues();
    void add(Property const& property, bool isParents);

    std::vector<Entry> entries;
    /// Of the properties in `entries`, the last value of each field. Null without any.
    std::unique_ptr<Style> values;
};

/// What a rule or an attribute declares.
struct DeclarationBlock {
    Declarations normal;
    Declarations important;
};

}  // namespace galley::web
