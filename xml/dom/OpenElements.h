#pragma once

#include <utility>
#include <vector>

#include "xml/dom/readDocument.h"

namespace CLI::XML {

/// The elements between the outermost one of a subtree and the one that is being read. An element
/// enters the one around it when it is complete.
class OpenElements {
public:
    bool isEmpty() const { return open.empty(); }
    void push(ZRLWPtr<DomElement> element) { open.push_back(std::move(element)); }

    /// The innermost element.
    DomElement& innermost() const { return *open.back(); }

    /// Closes the innermost element. Returns the outermost one if that was it, otherwise null.
    ZRLWPtr<DomElement> pop() {
        ZRLWPtr<DomElement> closed = std::move(open.back());
        open.pop_back();
        if (open.empty()) return closed;
        innermost().children.add(std::move(closed));
        return {};
    }

private:
    std::vector<ZRLWPtr<DomElement>> open;
};

}  // namespace CLI::XML
