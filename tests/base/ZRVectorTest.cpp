#include "base/ZRVector.h"

#include <new>
#include <tuple>

#include "tests/support/text.h"

namespace {

/// The elements, each behind a blank; also checks that the slots beyond them are empty.
std::string contents(ZRVector<String> const& vector) {
    EXPECT_LE(vector.count, vector.capacity);
    for (unsigned i = vector.count; i < vector.capacity; ++i) EXPECT_EQ(vector[i], "");
    std::string result;
    for (String const& element : vector) result += " " + shown(element);
    return result;
}

ZRVector<String> filled(std::initializer_list<char const*> elements) {
    ZRVector<String> vector;
    for (char const* const element : elements) vector.add(element);
    return vector;
}

TEST(VectorGrowth, GoesToTheNextMultipleOfTheStepBeyondTheNumberAsked) {
    ZRVector<String> vector;
    for (unsigned const expected : {2U, 2U, 4U, 4U, 6U}) {
        vector.add("x");
        EXPECT_EQ(vector.capacity, expected) << vector.count;
    }
    using Row = std::tuple<unsigned, unsigned, unsigned>;
    for (auto const& [step, asked, expected] :
         {Row(2, 0, 2), Row(2, 1, 2), Row(2, 2, 4), Row(2, 3, 4), Row(2, 4, 6), Row(2, 5, 6),
          Row(3, 4, 6)}) {
        ZRVector<String> empty;
        empty.growBy = step;
        EXPECT_TRUE(empty.enlarge(asked));
        EXPECT_EQ(empty.capacity, expected) << step << ' ' << asked;
        EXPECT_EQ(contents(empty), "");
    }
}

TEST(VectorGrowth, ThatIsImpossibleLeavesTheVectorAsItWas) {
    ZRVector<String> vector = filled({"a", "b"});
    EXPECT_THROW(vector.enlarge(0xFFFFFFFE), std::bad_alloc);
    EXPECT_THROW(vector[0xFFFFFFFF], std::bad_alloc);
    EXPECT_EQ(vector.capacity, 2U);
    EXPECT_EQ(contents(vector), " a b");
}

TEST(VectorGrowth, BringsTheSlotsBeforeAnIndexIntoUse) {
    ZRVector<String> vector;
    vector[5] = "x";
    EXPECT_EQ(vector.capacity, 8U);
    vector[6] = "y";
    EXPECT_EQ(contents(vector), "      x y");
    vector.insert(8, "z");
    EXPECT_EQ(contents(vector), "      x y  z");
    EXPECT_EQ(vector.capacity, 10U);
}

TEST(VectorInsert, TakesAnElementOfTheVectorAtEveryCapacity) {
    ZRVector<String> vector = filled({"the first, too long to be inline"});
    for (unsigned count = 1; count <= 16; count += 2) {
        vector.add(vector[0]);
        vector.insert(0, vector[count]);
        for (String const& element : vector) EXPECT_EQ(element, vector[0]) << count;
    }
    EXPECT_EQ(vector.count, 17U);
}

TEST(VectorElements, KeepTheirOrderAndLeaveEmptySlots) {
    ZRVector<String> vector = filled({"a", "b"});
    vector.insert(1, "x");
    EXPECT_EQ(contents(vector), " a x b");
    vector.removeAt(3);
    vector.removeAt(0);
    EXPECT_EQ(contents(vector), " x b");
    ZRVector<String> target = filled({"y"});
    vector.moveTailTo(2, target);
    vector.moveTailTo(1, target);
    EXPECT_EQ(contents(vector), " x");
    EXPECT_EQ(contents(target), " y b");
    vector.clear();
    EXPECT_EQ(contents(vector), "");
    EXPECT_EQ(vector.capacity, 4U);
}

TEST(VectorCopy, KeepsItsOwnStepAndIsIndependent) {
    ZRVector<String> source = filled({"a", "b"});
    ZRVector<String> target = filled({"x", "y", "z"});
    target.growBy = 3;
    target = source;
    source[0] = "c";
    EXPECT_EQ(contents(target = *&target), " a b");
    EXPECT_EQ(target.growBy, 3U);
    EXPECT_EQ(ZRVector<String>(source).capacity, 4U);
}

}  // namespace
