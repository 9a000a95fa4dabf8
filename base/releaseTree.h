#pragma once

/// Releases the children of a node, of which the last reference goes, and with them every node
/// below that nobody else holds: without recursion, since trees are as deep as documents, and
/// without allocating. `Parent` is a class with `children`, a vector of counting pointers, and
/// `nextReleased`, a pointer to another `Parent`; `asParent(child)` is the child as a `Parent`, or
/// null for a leaf.
template <class Parent, class AsParent>
void releaseTree(Parent& root, AsParent const& asParent) {
    Parent* doomed = nullptr;
    auto const releaseChildren = [&](Parent& node) {
        for (unsigned i = 0; i < node.children.count; ++i) {
            auto*& child = node.children.data[i].object;
            if (child == nullptr) continue;
            Parent* const parent = child->refCount == 1 ? asParent(child) : nullptr;
            if (parent != nullptr) {
                parent->nextReleased = doomed;
                doomed = parent;
            } else {
                child->release();
            }
            child = nullptr;
        }
        node.children.count = 0;
    };
    releaseChildren(root);
    while (doomed != nullptr) {
        Parent& next = *doomed;
        doomed = next.nextReleased;
        releaseChildren(next);
        next.release();
    }
}
