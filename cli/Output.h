#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "cli/ExitStatus.h"

/// Takes what a run makes of its documents, in their order.
class Output {
public:
    Output() = default;
    Output(Output const&) = delete;
    Output& operator=(Output const&) = delete;
    virtual ~Output() = default;

    /// Takes the text that document `i` was turned into. Reports why if it cannot.
    virtual ExitStatus write(std::size_t i, std::string_view text) = 0;
    /// Takes the text of errors, whole lines.
    virtual void report(std::string const& errors) = 0;
    /// Whether it has a use for further texts.
    virtual bool isOpen() const = 0;
};
