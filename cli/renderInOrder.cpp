#include "cli/renderInOrder.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace {

/// Renderings that are being made, or wait for those before them.
///
/// 1. `taken` <= `begun` <= `taken` + the number of slots, and `begun` <= `count`.
/// 2. Rendering i, for `taken` <= i < `begun`, has the slot i modulo their number; the slot is
///    empty as long as the rendering is being made.
class Window {
public:
    Window(std::size_t total, std::size_t size) : count(total), slots(size) {}

    /// Makes one after the other, as long as there are any to begin.
    void work(std::function<Rendering(std::size_t)> const& make) {
        while (std::optional<std::size_t> const i = begin()) {
            Rendering rendering = make(*i);
            std::lock_guard const lock(mutex);
            slots[*i % slots.size()] = std::move(rendering);
            changed.notify_all();
        }
    }

    /// Waits for the next in order.
    Rendering take() {
        std::unique_lock lock(mutex);
        std::optional<Rendering>& slot = slots[taken % slots.size()];
        changed.wait(lock, [&] { return slot.has_value(); });
        Rendering rendering = std::move(*slot);
        slot.reset();
        ++taken;
        changed.notify_all();
        return rendering;
    }

    /// Lets no further one begin.
    void close() {
        std::lock_guard const lock(mutex);
        count = begun;
        changed.notify_all();
    }

private:
    std::optional<std::size_t> begin() {
        std::unique_lock lock(mutex);
        changed.wait(lock, [&] { return begun == count || begun < taken + slots.size(); });
        return begun < count ? std::optional(begun++) : std::nullopt;
    }

    std::mutex mutex;
    std::condition_variable changed;
    std::size_t count;
    std::size_t begun = 0;
    std::size_t taken = 0;
    std::vector<std::optional<Rendering>> slots;
};

/// Ends the work of a window in time for its threads to end, also when something is thrown.
class Closing {
public:
    explicit Closing(Window& toClose) : window(toClose) {}
    Closing(Closing const&) = delete;
    Closing& operator=(Closing const&) = delete;
    ~Closing() { window.close(); }

private:
    Window& window;
};

}  // namespace

void renderInOrder(std::size_t count, unsigned jobs,
                   std::function<Rendering(std::size_t)> const& make,
                   std::function<bool(Rendering const&)> const& take) {
    std::size_t const wanted = std::min<std::size_t>(jobs, count);
    Window window(count, 2 * wanted);
    std::vector<std::jthread> threads;
    Closing const closing(window);
    try {
        threads.reserve(wanted);
        while (wanted > 1 && threads.size() < wanted) {
            threads.emplace_back([&] { window.work(make); });
        }
    } catch (std::system_error const&) {
        // The system grants no more; those that run do it all, or this one.
    }
    for (std::size_t i = 0; i < count; ++i) {
        if (!take(threads.empty() ? make(i) : window.take())) break;
    }
}
