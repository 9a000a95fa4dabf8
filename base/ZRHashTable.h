#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string_view>

#include "StringHash.h"

/// A chained hash table with a fixed number of buckets, for a handful of string keys. Beyond that
/// handful an index of its own finds an entry, so that the length of the chains costs nothing.
///
/// 1. The list of all entries is circular through `head`, newest first: walking from `head.prev`
///    along `prev` visits the entries in the order in which they were added.
/// 2. A bucket is null until an entry first falls into it, then a sentinel that lives as long as
///    the table. Its chain is circular through the sentinel; walking along `bucketNext` visits
///    its entries oldest first.
/// 3. Keys need not be unique: `add` always inserts, `get` and `set` act on the oldest equal key.
template <class K, class V, class Hash, class Compare>
class ZRHashTable {
public:
    /// An entry, owned by the table, or a sentinel, whose key and value say nothing.
    struct Node {
        Node* next = this;        ///< Among all entries: the one added before this one.
        Node* prev = this;        ///< Among all entries: the one added after this one.
        Node* bucketPrev = this;  ///< In the chain: the one added before this one.
        Node* bucketNext = this;  ///< In the chain: the one added after this one.
        K key;                    ///< Not to be changed.
        V value;                  ///< As it was set last.
    };

    unsigned bucketCount = 16;  ///< Never changes.
    unsigned count = 0;         ///< Entries, those with equal keys included.
    Node head;                  ///< The sentinel of the list of all entries.
    /// Shared by all tables without entries, and never written to, until the first entry.
    Node** buckets = s_noBuckets;
    /// Not told by their address, since a program and a library may have an `s_noBuckets` each.
    bool ownsBuckets = false;

    ZRHashTable() = default;
    ZRHashTable(ZRHashTable const&) = delete;
    ZRHashTable& operator=(ZRHashTable const&) = delete;
    virtual ~ZRHashTable() {
        clear();
        if (!ownsBuckets) return;
        for (unsigned i = 0; i < bucketCount; ++i) delete buckets[i];
        delete[] buckets;
    }

    /// Inserts copies of key and value, also when the key is there already. Returns the stored
    /// value.
    V& add(K const& key, V const& value) {
        auto node = std::make_unique<Node>();
        node->key = key;
        node->value = value;
        if (!ownsBuckets) buckets = new Node* [bucketCount] {};
        ownsBuckets = true;
        Node*& bucket = bucketOf(Hash()(key));
        if (bucket == nullptr) bucket = new Node;
        if (count == s_handful) indexAll();
        if (index != nullptr) index->try_emplace(node->key.view(), node.get());
        link(*node, *bucket);
        ++count;
        return node.release()->value;
    }

    /// Assigns `value` to the oldest entry with an equal key, or adds one. Returns the stored
    /// value.
    V& set(K const& key, V const& value) {
        Node* const node = findNode(key, Hash()(key));
        if (node == nullptr) return add(key, value);
        return node->value = value;
    }

    /// Assigns the value of the oldest entry with an equal key to `out`; without one, returns
    /// false and leaves `out` untouched.
    bool get(K const& key, V& out) const {
        Node const* const node = findNode(key, Hash()(key));
        if (node == nullptr) return false;
        out = node->value;
        return true;
    }

    /// The same without a copy, by the bytes of the key and their hash; null without an entry.
    V const* find(std::string_view key, std::uint32_t hash) const {
        Node const* const node = count > 0 ? findNode(key, hash) : nullptr;
        return node != nullptr ? &node->value : nullptr;
    }

    /// Removes every entry, oldest first; bucket sentinels stay.
    void clear() {
        index.reset();
        while (head.prev != &head) {
            Node* const oldest = head.prev;
            unlink(*oldest);
            --count;
            delete oldest;
        }
    }

private:
    /// Oldest entry by key. No document can make it slow.
    using Index = std::map<std::string_view, Node*>;

    static constexpr unsigned s_handful = 64;
    static inline Node* s_noBuckets[16] = {};

    void indexAll() {
        auto made = std::make_unique<Index>();
        for (Node* node = head.prev; node != &head; node = node->prev) {
            made->try_emplace(node->key.view(), node);
        }
        index = std::move(made);
    }

    Node*& bucketOf(std::uint32_t hash) const { return buckets[hash % bucketCount]; }

    template <class Key>
    Node* findNode(Key const& key, std::uint32_t hash) const {
        if (index != nullptr) {
            auto const found = index->find(viewOf(key));
            return found != index->end() ? found->second : nullptr;
        }
        Node* const bucket = bucketOf(hash);
        if (bucket == nullptr) return nullptr;
        for (Node* node = bucket->bucketNext; node != bucket; node = node->bucketNext) {
            if (Compare()(node->key, key)) return node;
        }
        return nullptr;
    }

    static std::string_view viewOf(std::string_view key) { return key; }
    static std::string_view viewOf(K const& key) { return key.view(); }

    void link(Node& node, Node& bucket) {
        node.next = head.next;
        node.prev = &head;
        head.next->prev = &node;
        head.next = &node;
        node.bucketPrev = bucket.bucketPrev;
        node.bucketNext = &bucket;
        bucket.bucketPrev->bucketNext = &node;
        bucket.bucketPrev = &node;
    }

    static void unlink(Node& node) {
        node.prev->next = node.next;
        node.next->prev = node.prev;
        node.bucketPrev->bucketNext = node.bucketNext;
        node.bucketNext->bucketPrev = node.bucketPrev;
    }

    /// Null up to a handful of entries.
    std::unique_ptr<Index> index;
};
