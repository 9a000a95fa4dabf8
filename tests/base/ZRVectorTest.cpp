#include "base/ZRVector.h"

#include <algorithm>
#include <new>
#include <tuple>
#include <utility>

#include "tests/support/text.h"

namespace {

/// The elements, each behind a blank.
std::string elements(ZRVector<String> const& vector) {
    EXPECT_LE(vector.count, vector.capacity);
    std::string result;
    for (String const& element : vector) result += " " + shown(element);
    return result;
}

/// As `elements`; also checks that the slots beyond them are empty.
std::string contents(ZRVector<String> const& vector) {
    for (unsigned i = vector.count; i < vector.capacity; ++i) EXPECT_EQ(vector[i], "");
    return elements(vector);
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
    using Case = std::tuple<unsigned, unsigned, unsigned>;
    for (auto const& [step, asked, expected] : {Case(2, 0, 2), Case(2, 1, 2), Case(2, 2, 4),
                                                Case(2, 4, 6), Case(2, 5, 6), Case(3, 4, 6)}) {
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
    EXPECT_EQ(contents(vector), " a b");
    EXPECT_EQ(vector.capacity, 2U);
}

TEST(VectorGrowth, BringsTheSlotsBeforeAnIndexIntoUse) {
    ZRVector<String> vector;
    vector[5] = "x";
    EXPECT_EQ(vector.capacity, 8U);
    vector[6] = "y";
    vector.insert(8, "z");
    EXPECT_EQ(contents(vector), "      x y  z");
    EXPECT_EQ(vector.capacity, 10U);
}

TEST(VectorElements, MayBeInsertedOnceMoreAtEveryCapacity) {
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
    vector.clear();
    EXPECT_EQ(contents(vector), "");
    EXPECT_EQ(vector.capacity, 4U);
}

/// `n` elements, and what `elements` says of those from `first` on.
///@{
ZRVector<String> numbered(unsigned n) {
    ZRVector<String> vector;
    for (unsigned i = 0; i < n; ++i) vector.add(std::to_string(i).c_str());
    return vector;
}

std::string numbers(unsigned first, unsigned n) {
    std::string text;
    for (unsigned i = first; i < n; ++i) text += " " + std::to_string(i);
    return text;
}
///@}

TEST(VectorTail, MovesBehindTheElementsOfTheTarget) {
    for (unsigned const from : {0U, 1U, 2U, 4U, 5U, 6U}) {
        for (unsigned const held : {0U, 1U, 3U}) {
            SCOPED_TRACE(testing::Message() << from << " " << held);
            ZRVector<String> source = numbered(5);
            ZRVector<String> target = numbered(held);
            unsigned const kept = std::min(from, 5U);
            source.moveTailTo(from, target);
            EXPECT_EQ(elements(target), numbers(0, held) + numbers(kept, 5));
            EXPECT_EQ(elements(source), numbers(0, kept));
            EXPECT_EQ(source.capacity, 6U);
            EXPECT_EQ(target.capacity, (target.count + 1) / 2 * 2);
        }
    }
}

/// A number that a move leaves as it is. All that live are counted.
struct Counted {
    static inline int s_living = 0;
    int value = 7;

    Counted() { ++s_living; }
    Counted(Counted const& other) : value(other.value) { ++s_living; }
    Counted& operator=(Counted const& other) = default;
    ~Counted() { --s_living; }
};

TEST(VectorTail, LeavesSlotsAsNewAndEveryElementToBeDestroyed) {
    // Of 96 elements each is in use, of what is reserved for a growing vector.
    for (unsigned const size : {5U, 96U, 100U}) {
        for (unsigned const from : {0U, 1U, 2U, 60U}) {
            SCOPED_TRACE(testing::Message() << size << " " << from);
            ZRVector<Counted> source;
            for (unsigned i = 0; i < size; ++i) source[i].value = 1;
            ZRVector<Counted> target;
            if (from > 1) target[2].value = 1;
            source.moveTailTo(from, target);
            for (ZRVector<Counted> const* vector : {&source, &target}) {
                for (unsigned i = vector->count; i < vector->capacity; ++i) {
                    EXPECT_EQ(vector->data[i].value, 7) << i;
                }
            }
        }
        EXPECT_EQ(Counted::s_living, 0) << size;
    }
}

/// A number that new storage can refuse to hold.
struct Refusable {
    static inline bool s_refused = false;
    int value = 0;

    Refusable() {
        if (s_refused) throw std::bad_alloc();
    }
    explicit Refusable(int number) : value(number) {}
    Refusable(Refusable&& other) noexcept : value(std::exchange(other.value, 0)) {}
    Refusable& operator=(Refusable&& other) noexcept {
        value = std::exchange(other.value, 0);
        return *this;
    }
};

TEST(VectorTail, StaysWhereThereIsNoMemoryForTheRest) {
    ZRVector<Refusable> source;
    for (int number = 0; number < 100; ++number) source.add(Refusable(number));
    ZRVector<Refusable> target;
    for (int number = 0; number < 4; ++number) target.add(Refusable(number));
    Refusable::s_refused = true;
    EXPECT_THROW(source.moveTailTo(2, target), std::bad_alloc);
    Refusable::s_refused = false;
    ASSERT_EQ(source.count, 100U);
    ASSERT_EQ(target.count, 4U);
    for (unsigned i = 0; i < 100; ++i) EXPECT_EQ(source[i].value, static_cast<int>(i));
    for (unsigned i = 0; i < 4; ++i) EXPECT_EQ(target[i].value, static_cast<int>(i));
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
    ZRVector<String> const moved = std::move(source);
    EXPECT_EQ(contents(moved) + contents(source), " c b");
}

}  // namespace
