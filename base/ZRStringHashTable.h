#pragma once

#include "ZRHashTable.h"

/// A hash table with string keys.
template <class V>
class ZRStringHashTable : public ZRHashTable<String, V, StringHash, StringCompare> {
public:
    ~ZRStringHashTable() override = default;
};
