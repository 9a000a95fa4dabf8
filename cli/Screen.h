#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// A screen of its own on the terminal that standard output goes to. There is one at a time.
class Screen {
public:
    Screen() { enter(); }
    Screen(Screen const&) = delete;
    Screen& operator=(Screen const&) = delete;
    ~Screen() { leave(); }

    /// What the terminal shows stays as it is, underneath. Once more, it makes up for what others
    /// did to the terminal meanwhile.
    static void enter();
    /// Brings that back, the cursor and the echo of keys; what was typed meanwhile is dropped. Does
    /// nothing the second time. The handler of a signal may call it.
    static void leave();

    /// Shows a page, each row in the attributes that the terminal begins with, and errors below it.
    /// A page that is too long is shown where it has changed, with a line that says which rows
    /// these are. Returns 0, or the `errno` that tells why it cannot be written.
    int show(std::string_view page, std::string_view errors);

private:
    /// Of the page that was shown last.
    std::vector<std::string> rows;
    /// Of the terminal at that time.
    std::size_t columns = 0;
    /// The first row of the page that is on the screen.
    std::size_t top = 0;
};
