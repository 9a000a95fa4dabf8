#include "cli/renderInOrder.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>

namespace {

Rendering numbered(std::size_t i) {
    Rendering rendering;
    rendering.error = std::to_string(i);
    return rendering;
}

TEST(RenderInOrderOnThreads, HandsOverEveryRenderingInItsPlaceAndStaysInTheWindow) {
    for (std::size_t const count : {0U, 1U, 2U, 7U, 200U}) {
        for (unsigned const jobs : {1U, 2U, 3U, 16U}) {
            std::atomic<std::size_t> taken = 0;
            std::atomic<bool> isAhead = false;
            auto const make = [&](std::size_t i) {
                if (i > taken + std::size_t{2} * jobs) isAhead = true;
                // Time for the others to run ahead, if they can.
                if (i == 0) std::this_thread::sleep_for(std::chrono::milliseconds(5));
                return numbered(i);
            };
            auto const take = [&](Rendering const& rendering) {
                EXPECT_EQ(rendering.error, std::to_string(taken++));
                return true;
            };
            renderInOrder(count, jobs, make, take);
            EXPECT_EQ(taken, count) << jobs;
            EXPECT_FALSE(isAhead) << count << " with " << jobs;
        }
    }
}

TEST(RenderInOrderOnThreads, EndsWhereItsCallerWantsNoMore) {
    for (unsigned const jobs : {1U, 3U}) {
        std::atomic<std::size_t> made = 0;
        auto const make = [&](std::size_t i) {
            ++made;
            return numbered(i);
        };
        std::size_t taken = 0;
        renderInOrder(1000, jobs, make, [&](Rendering const&) { return ++taken < 5; });
        EXPECT_EQ(taken, 5U);
        EXPECT_LE(made, 5 + std::size_t{2} * jobs);
        auto const refuse = [](Rendering const&) -> bool { throw 1; };
        EXPECT_THROW(renderInOrder(1000, jobs, make, refuse), int);
    }
}

}  // namespace
