#pragma once

/// Releases the children of a node, of which the last reference goes, and with them every node
/// below that nobody else holds: without recursion, since trees are as deep as documents, and
/// without allocating. `Parent` is a class with `children`, a vector of counting pointers to it or
/// to its base; `asParent(child)` is the child as a `Parent`, or null for a leaf.
template <class Parent, class AsParent>
void releaseTree(Parent& root, AsParent const& asParent) {
    Parent* node = &root;
    // The slot that a child left in its parent, while the nodes below the child go, points to the
    // parent's own parent.
    Parent* above = nullptr;
    for (;;) {
        if (node->children.count > 0) {
            auto*& slot = node->children.data[--node->children.count].object;
            auto* const child = slot;
            slot = nullptr;
            if (child == nullptr) continue;
            if (Parent* const parent = child->refCount == 1 ? asParent(child) : nullptr) {
                slot = above;
                above = node;
                node = parent;
            } else {
                child->release();
            }
        } else if (node == &root) {
            return;
        } else {
            Parent* const released = node;
            node = above;
            auto*& slot = node->children.data[node->children.count].object;
            above = static_cast<Parent*>(slot);
            slot = nullptr;
            released->release();
        }
    }
}
