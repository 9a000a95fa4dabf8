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
    struct Node {
        Node* prev;
        Node* next;
        T value;
    };

    /// Walks the values from first to last.
    class Iterator {
    public:
        explicit Iterator(Node const* start) : node(start) {}
        Iterator(Iterator const&) = default;
        Iterator& operator=(Iterator const&) = default;
        virtual ~Iterator() = default;

        T const& operator*() const { return node->value; }
        Iterator& operator++() {
            node = node->next;
            return *this;
        }
        bool operator==(Iterator const& other) const { return node == other.node; }

    private:
        Node const* node;
    };

    Node head{&head, &head, T()};
    unsigned count = 0;

    ZRList() = default;
    ZRList(ZRList const&) = delete;
    ZRList& operator=(ZRList const&) = delete;
    ~ZRList() { clear(); }

    Iterator begin() const { return Iterator(head.next); }
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
