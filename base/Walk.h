#pragma once

#include <coroutine>
#include <exception>
#include <utility>

/// A recursion over a tree whose calls live on the heap, so that the depth of a document is limited
/// by memory and not by the thread's stack. A function that returns a `Walk` calls another one, or
/// itself, with `co_await`; `run` carries the outermost one through to its end.
///
///     Walk visit(Box& box) {
///         for (ZRLWPtr<Box> const& child : box.children) co_await visit(*child);
///     }
///
/// A call does nothing until it is awaited, but for a function that hands out the `Walk` of another
/// one, or an empty one where it has nothing left to call. Its parameters must outlive it; an
/// exception passes through to the caller as it would through a function.
class [[nodiscard]] Walk {
public:
    // What the language asks of a coroutine.
    /// @cond
    struct promise_type;  // NOLINT(readability-identifier-naming): the language's name
    using Handle = std::coroutine_handle<promise_type>;

    struct promise_type {
        /// Goes on when this call has returned; null for the outermost one.
        Handle caller;
        /// Of the whole walk: the call that runs, null when all have returned.
        Handle* running = nullptr;
        std::exception_ptr failure;

        Walk get_return_object() { return Walk(Handle::from_promise(*this)); }
        std::suspend_always initial_suspend() noexcept { return {}; }
        std::suspend_always final_suspend() const noexcept {
            *running = caller;
            return {};
        }
        void return_void() {}
        void unhandled_exception() { failure = std::current_exception(); }
    };
    /// @endcond

    /// A call that has returned already.
    Walk() = default;
    /// Whether there is nothing left to await.
    bool hasReturned() const { return !call; }
    /// Takes the call over; `other` has returned already.
    Walk(Walk&& other) noexcept : call(std::exchange(other.call, nullptr)) {}
    Walk& operator=(Walk&&) = delete;
    /// Destroys the call, also one that never ran to its end.
    ~Walk() {
        if (call) call.destroy();
    }

    /// Carries a call and all that it awaits through to the end, and passes its exception on.
    static void run(Walk const& outermost) {
        Handle running = outermost.call;
        if (!running) return;
        running.promise().running = &running;
        while (running) running.resume();
        outermost.await_resume();
    }

    // What `co_await` asks of an operand.
    /// @cond
    bool await_ready() const noexcept { return !call; }
    void await_suspend(Handle caller) const noexcept {
        promise_type& promise = call.promise();
        promise.caller = caller;
        promise.running = caller.promise().running;
        *promise.running = call;
    }
    void await_resume() const {
        if (call && call.promise().failure) std::rethrow_exception(call.promise().failure);
    }
    /// @endcond

private:
    explicit Walk(Handle made) : call(made) {}

    Handle call = nullptr;
};
