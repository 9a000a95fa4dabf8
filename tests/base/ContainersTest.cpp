#include "base/ZRList.h"
#include "base/ZRStringHashTable.h"
#include "tests/support/text.h"

namespace {

using Table = ZRStringHashTable<String>;

/// All entries, oldest first, and their number; both directions of the list have to agree.
std::string contents(Table const& table) {
    std::string forward;
    std::string backward;
    auto const entry = [](auto const& n) { return shown(n.key) + "=" + shown(n.value) + " "; };
    for (auto* n = table.head.prev; n != &table.head; n = n->prev) forward += entry(*n);
    for (auto* n = table.head.next; n != &table.head; n = n->next) backward = entry(*n) + backward;
    EXPECT_EQ(forward, backward);
    return forward + std::to_string(table.count);
}

std::string lookUp(Table const& table, String const& key) {
    String value = "untouched";
    bool const found = table.get(key, value);
    return (found ? "" : "no, ") + shown(value);
}

TEST(StringHash, MixesUnsignedBytesAndChoosesTheBucket) {
    using Case = std::pair<String, std::uint32_t>;
    for (auto const& [key, hash] :
         {Case("", 0), Case("a", 97), Case("\x80", 128), Case("\xFF", 255),
          Case("ab", 97U ^ 98U ^ 97U << 5), Case(bytes("a\0"), 97U ^ 97U << 5),
          Case("display", 0xD5D9EF7A), Case("margin", 0xDAF95ADE),
          Case("background-color", 0xC0F2751E)}) {
        EXPECT_EQ(StringHash()(key), hash) << shown(key);
        Table table;
        table.add(key, "v");
        for (unsigned i = 0; i < 16; ++i) EXPECT_EQ(table.buckets[i] != nullptr, i == hash % 16);
    }
}

TEST(HashTable, FindsEveryKeyOfASharedBucket) {
    Table table;
    EXPECT_EQ(lookUp(table, "margin"), "no, untouched");
    table.add("margin", "1");
    EXPECT_EQ(lookUp(table, "background-color"), "no, untouched");
    table.add("background-color", "red");
    EXPECT_EQ(lookUp(table, "margin") + lookUp(table, "background-color"), "1red");
    auto const* const chain = table.buckets[14];
    EXPECT_EQ(chain->bucketNext->key, "margin");
    EXPECT_EQ(chain->bucketPrev->key, "background-color");
}

TEST(HashTable, ActsOnTheOldestOfEqualKeys) {
    Table table;
    table.add("a", "1");
    table.set("b", "2") = "3";
    table.add("a", "4");
    EXPECT_EQ(lookUp(table, "a"), "1");
    EXPECT_EQ(table.set("a", "5"), "5");
    EXPECT_EQ(contents(table), "a=5 b=3 a=4 3");
}

TEST(HashTable, KeepsItsBucketsWhenItIsCleared) {
    Table table;
    table.add("a", "1");
    table.add("q", "2");
    auto const* const bucket = table.buckets[1];
    table.clear();
    EXPECT_EQ(contents(table) + lookUp(table, "a"), "0no, untouched");
    table.add("a", "3");
    EXPECT_EQ(contents(table) + lookUp(table, "a"), "a=3 13");
    EXPECT_EQ(table.buckets[1], bucket);
    EXPECT_EQ(bucket->bucketPrev, bucket->bucketNext);
}

TEST(HashTable, FindsTheOldestOfManyKeys) {
    Table table;
    // Each key twice, half of them from before the table is indexed.
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 50; ++i) {
            String const key(String::formatted, "key%d", i);
            table.add(key, round == 0 ? key : String("newer"));
        }
    }
    table.set("key49", "set");
    table.set("other", "added");
    EXPECT_EQ(table.count, 101U);
    EXPECT_EQ(lookUp(table, "key7") + lookUp(table, "key49") + lookUp(table, "other"),
              "key7setadded");
    table.clear();
    EXPECT_EQ(lookUp(table, "key7"), "no, untouched");
    table.set("key7", "again");
    EXPECT_EQ(contents(table), "key7=again 1");
}

TEST(List, WalksItsValuesInTheOrderOfAppending) {
    ZRList<String> list;
    for (int round = 0; round < 2; ++round) {
        list.clear();
        EXPECT_TRUE(list.head.next == &list.head && list.head.prev == &list.head);
        for (char const* const value : {"one ", "two ", "three "}) list.add(value);
        std::string walked;
        for (String const& value : list) walked += shown(value);
        EXPECT_EQ(walked + std::to_string(list.count), "one two three 3");
        EXPECT_EQ(list.head.prev->prev->value, "two ");
    }
}

}  // namespace
