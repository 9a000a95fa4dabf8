#pragma once

#include <string>
#include <vector>

#include "web/Element.h"

namespace galley::web {

/// The numbers `step * n + offset` for each `n` from 0.
struct Nth {
    int step = 0;
    int offset = 0;

    bool has(unsigned index) const;
};

/// One thing that is asked about an element.
struct SimpleSelector {
    enum class Kind { type, className, id, nthChild, lastChild };

    Kind kind;
    /// Of an element, a class or an identifier.
    std::string name;
    Nth nth;

    bool matches(Element const& element) const;
};

/// All that is asked about one element. Without any, it is every element.
struct CompoundSelector {
    std::vector<SimpleSelector> parts;
    /// Whether the compound to the left is about the parent, and not about any ancestor.
    bool isChild = false;

    bool matches(Element const& element) const;
};

class Selector {
public:
    /// From the right to the left; at least one.
    explicit Selector(std::vector<CompoundSelector> parts);

    /// Takes time in proportion to the element's depth at most, for each compound.
    bool matches(Element const& element) const;

    /// What is asked about the element itself.
    CompoundSelector const& subject() const { return compounds.front(); }

    /// From the right to the left.
    std::vector<CompoundSelector> const& all() const { return compounds; }

    /// Greater for what comes before others.
    unsigned specificity() const { return weight; }

    /// Whether it depends on the place of the element, or of one around it, among its siblings.
    bool asksForPlace() const { return isPlaced; }

    bool asksForLastChild() const;

private:
    std::vector<CompoundSelector> compounds;
    unsigned weight = 0;
    bool isPlaced = false;
};

/// The value of an attribute; empty without it.
std::string_view valueOf(Element const& element, std::string_view name);

/// The classes of an element, each once, in ascending order. The attribute is read once, so that
/// any number of selectors may ask for any number of classes.
std::vector<std::string_view> const& classesOf(Element const& element);

}  // namespace galley::web
