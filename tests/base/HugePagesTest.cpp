#include "base/hugePages.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include "base/String.h"
#include "base/ZRVector.h"

namespace {

/// What the system says of the pages at `address`.
bool areHugePagesAdvised(void const* address) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast)
    auto const wanted = reinterpret_cast<std::uintptr_t>(address);
    std::ifstream maps("/proc/self/smaps");
    bool isWithin = false;
    for (std::string line; std::getline(maps, line);) {
        std::istringstream words(line);
        std::uintptr_t first = 0;
        std::uintptr_t end = 0;
        char dash = '\0';
        if (words >> std::hex >> first >> dash >> end && dash == '-') {
            isWithin = first <= wanted && wanted < end;
        } else if (isWithin && line.rfind("VmFlags:", 0) == 0) {
            return line.find(" hg") != std::string::npos;
        }
    }
    return false;
}

class HugePages : public testing::Test {
protected:
    void SetUp() override {
        if (!std::filesystem::exists("/sys/kernel/mm/transparent_hugepage")) GTEST_SKIP();
    }
};

/// Memory of the system's, from a huge page's boundary on.
class Mapping {
public:
    static constexpr std::size_t s_size = 8 * s_hugePageSize;

    Mapping()
        : mapped(mmap(nullptr, s_size + s_hugePageSize, PROT_READ | PROT_WRITE,
                      MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)) {
        void* aligned = mapped;
        std::size_t space = s_size + s_hugePageSize;
        start = static_cast<char*>(std::align(s_hugePageSize, s_size, aligned, space));
    }
    Mapping(Mapping const&) = delete;
    Mapping& operator=(Mapping const&) = delete;
    ~Mapping() { munmap(mapped, s_size + s_hugePageSize); }

    char* at(std::size_t offset) const { return start + offset; }

private:
    void* mapped;
    char* start;
};

TEST_F(HugePages, AreAskedForWhereverTheMemoryIs) {
    struct Case {
        std::size_t first;
        std::size_t size;
        /// Huge pages that are asked for, from one up to but not including another.
        std::size_t begin;
        std::size_t end;
    };
    constexpr std::size_t s_page = s_hugePageSize;
    static constexpr Case s_cases[] = {
        {2 * s_page, 3 * s_page, 2, 5},           {2 * s_page + 1, 3 * s_page, 2, 6},
        {2 * s_page - 1, 3 * s_page, 1, 5},       {2 * s_page - 16, 3 * s_page + 16, 1, 5},
        {2 * s_page - 16, 3 * s_page + 17, 1, 6}, {s_page, s_page, 1, 2},
        {s_page + 16, s_page - 16, 1, 2},         {s_page, 0, 0, 0},
    };
    for (auto const& [first, size, begin, end] : s_cases) {
        Mapping const memory;
        adviseHugePages(memory.at(first), size);
        for (std::size_t i = 0; i < 8; ++i) {
            bool const isExpected = begin <= i && i < end;
            for (std::size_t const offset : {i * s_page, (i + 1) * s_page - 1}) {
                EXPECT_EQ(areHugePagesAdvised(memory.at(offset)), isExpected)
                    << offset << " of " << size << " bytes from " << first;
            }
        }
    }
}

TEST_F(HugePages, AreUnderLongTextsAndVectors) {
    constexpr int s_size = 2 * static_cast<int>(s_hugePageSize);
    String text("a");
    ASSERT_TRUE(text.reserve(s_size));
    EXPECT_TRUE(areHugePagesAdvised(text.c_str() + s_size / 2));
    ZRVector<int> numbers;
    numbers[s_size / 4] = 1;
    EXPECT_TRUE(areHugePagesAdvised(numbers.data + s_size / 8));
}

TEST(HugePagesAdvice, KeepsTheErrorOfBefore) {
    char* const unmapped = Mapping().at(0);
    errno = ERANGE;
    adviseHugePages(unmapped, Mapping::s_size);
    EXPECT_EQ(errno, ERANGE);
}

}  // namespace
