#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Keyboard.h"
#include "cli/Keys.h"

/// A screen of its own on the terminal that standard output goes to, with the keys of that. There
/// is one at a time.
class Screen {
public:
    Screen() { enter(); }
    Screen(Screen const&) = delete;
    Screen& operator=(Screen const&) = delete;
    ~Screen() { leave(); }

    /// What the terminal shows stays as it is, underneath; keys arrive one by one, but for those
    /// that send signals. Once more, it makes up for what others did to the terminal meanwhile.
    static void enter();
    /// Brings that back, the cursor and the ways of keys; what was typed meanwhile is dropped. Does
    /// nothing the second time. The handler of a signal may call it.
    static void leave();

    /// Shows a page, each row in the attributes that the terminal begins with, and errors below it.
    /// A page that is too long is shown where it has changed, with a line that says which rows
    /// these are. Returns 0, or the `errno` that tells why it cannot be written.
    int show(std::string_view page, std::string_view errorText);
    /// Where keys come from, for `scroll`.
    Keyboard& keys() { return keyboard; }
    /// Shows other rows of that page, as the keys ask in turn. Returns the same.
    int scroll(std::vector<Key> const& keys);

private:
    /// Shares out the rows of the terminal as it is now.
    void measure();
    /// The line that says which rows are shown, the last of them before `end`.
    std::string position(std::size_t end) const;
    int draw() const;

    Keyboard keyboard;
    /// Of the page that was shown last.
    std::vector<std::string> rows;
    std::string errors;
    /// The first row of the page that is on the screen.
    std::size_t top = 0;

    // As measured last.
    std::size_t columns = 0;
    std::size_t height = 0;
    /// The rows of the errors.
    std::vector<std::string> below;
    /// Rows that the page may take; where it has more, a line below says which ones these are,
    /// unless there is but one.
    std::size_t room = 0;
    bool isCut = false;
};
