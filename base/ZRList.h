#pragma once

#include <utility>

/// An ordered, doubly linked list, circular through its sentinel. Nodes are owned by the list and
/// appended at the end only.
///
/// 1. `head.next` is the first node and `head.prev` the last; both are `head` in an empty list.
/// 2. `count` is the number of nodes, the sentinel not among them.
template <class T>
class ZRList {
public:
    /// A value with its neighbours, or the sentinel, whose value says nothing.
    struct Node {
        Node* prev;  ///< The sentinel for the first node.
        Node* next;  ///< The sentinel for the last node.
        T value;     ///< The list's own copy.
    };

    /// Walks the values from first to last.
    class Iterator {
    public:
        /// Stands at a node, which must outlive it; the sentinel is the end.
        explicit Iterator(Node const* start) : node(start) {}
        Iterator(Iterator const&) = default;
        Iterator& operator=(Iterator const&) = default;
        virtual ~Iterator() = default;

        /// The value of the node; not to be asked at the end.
        T const& operator*() const { return node->value; }
        /// Goes on to the next node, behind the last one to the end.
        Iterator& operator++() {
            node = node->next;
            return *this;
        }
        /// Whether both stand at the same node.
        bool operator==(Iterator const& other) const { return node == other.node; }

    private:
        Node const* node;
    };

    Node head{&head, &head, T()};  ///< The sentinel.
    unsigned count = 0;            ///< Nodes.

    ZRList() = default;
    ZRList(ZRList const&) = delete;
    ZRList& operator=(ZRList const&) = delete;
    ~ZRList() { clear(); }

    /// The first value, or the end of an empty list.
    Iterator begin() const { return Iterator(head.next); }
    /// Behind the last value.
    Iterator end() const { return Iterator(&head); }

    /// Appends a copy of `value`.
    void add(T const& value) {
        Node* const node = new Node{head.prev, &head, value};
        head.prev->next = node;
        head.prev = node;
        ++count;
    }

    /// Removes every node, from first to last.
    void clear() {
        while (head.next != &head) {
            Node* const first = head.next;
            head.next = first->next;
            first->next->prev = &head;
            --count;
            delete first;
        }
    }
};
