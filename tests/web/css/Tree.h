#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "web/css/Cascade.h"

namespace galley::web {

/// The elements of a markup such as `<ul><li class="a"/></ul>`: no text, double quotes, no faults.
class Tree {
public:
    explicit Tree(std::string_view markup) : source(markup) {
        Element* parent = nullptr;
        for (std::size_t at = 0; at < source.length();) {
            std::size_t const end = source.find('>', at);
            if (source[at + 1] == '/') {
                parent = const_cast<Element*>(parent->parent);  // NOLINT(*-const-cast): of `all`
            } else {
                Element& element = add(parent, at + 1, end);
                if (source[end - 1] != '/') parent = &element;
            }
            at = end + 1;
        }
    }

    /// In the order of the markup.
    std::deque<Element>& elements() { return all; }

    Element& byId(std::string_view id) {
        for (Element& element : all) {
            if (valueOf(element, "id") == id) return element;
        }
        throw std::out_of_range(std::string(id));
    }

    void styleWith(Cascade& cascade) {
        for (Element& element : all) element.style = cascade.styleOf(element);
    }

private:
    Element& add(Element* parent, std::size_t at, std::size_t end) {
        std::size_t const nameEnd = source.find_first_of(" />", at);
        attributes.push_back(readAttributes(nameEnd, end));
        Element element{parent, view(at, nameEnd), attributes.back(), 1, true, nullptr};
        for (Element& other : all) {
            if (other.parent != parent) continue;
            other.isLast = false;
            ++element.index;
        }
        return all.emplace_back(element);
    }

    std::vector<Attribute> readAttributes(std::size_t at, std::size_t end) const {
        std::vector<Attribute> found;
        while (true) {
            std::size_t const name = source.find_first_not_of(' ', at);
            std::size_t const equals = source.find('=', name);
            if (equals > end) return found;
            std::size_t const value = equals + 2;
            at = source.find('"', value) + 1;
            found.push_back({view(name, equals), view(value, at - 1), name, value});
        }
    }

    std::string_view view(std::size_t start, std::size_t end) const {
        return std::string_view(source).substr(start, end - start);
    }

    std::string source;
    std::deque<Element> all;
    std::deque<std::vector<Attribute>> attributes;
};

/// "OFFSET MESSAGE", a line for each problem.
inline std::string textOf(std::vector<Problem> const& problems) {
    std::string text;
    for (Problem const& problem : problems) {
        text += std::to_string(problem.offset) + " " + problem.message + "\n";
    }
    return text;
}

inline Sheet parsed(std::string_view text) {
    std::vector<Problem> ignored;
    return Sheet::parse(text, ignored);
}

}  // namespace galley::web
