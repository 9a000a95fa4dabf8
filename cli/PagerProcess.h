#pragma once

#include <sys/types.h>

#include <csignal>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

/// While it lives, the keys that end a program are for the pager alone, which has a use of its own
/// for them.
class KeysForPager {
public:
    KeysForPager();
    KeysForPager(KeysForPager const&) = delete;
    KeysForPager& operator=(KeysForPager const&) = delete;
    ~KeysForPager();

    /// The signals that the pager must not find ignored: its caller did not ignore them.
    sigset_t const& forPager() const { return defaults; }

private:
    static constexpr int s_signals[] = {SIGINT, SIGQUIT};
    struct sigaction before[std::size(s_signals)] = {};
    sigset_t defaults = {};
};

/// A command of the shell that reads text from this program.
class PagerProcess {
public:
    explicit PagerProcess(std::string command);
    PagerProcess(PagerProcess const&) = delete;
    PagerProcess& operator=(PagerProcess const&) = delete;
    ~PagerProcess() { finish(); }

    /// Returns whether the pipe to the pager has taken all of `text`: it has not once the pager is
    /// gone. Expects SIGPIPE to be ignored.
    bool send(std::string_view text);
    /// Whether more was sent than waits in the pipe.
    bool hasRead() const { return sent > capacity; }
    /// Ends the text and waits for the pager. Returns false where it failed and has read nothing,
    /// or there was no shell to run it; later calls return the same.
    bool finish();

private:
    KeysForPager const keys;
    /// -1 where the system could not start it, and once it is finished.
    pid_t process = -1;
    /// The end of the pipe that is written to; -1 without a process.
    int sink = -1;
    /// Of the pipe, in bytes.
    std::size_t capacity = 0;
    /// Bytes that the pipe has taken.
    std::size_t sent = 0;
    bool hasRun = false;
};
