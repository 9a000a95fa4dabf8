#pragma once

#include <vector>

#include "cli/Output.h"

/// Standard output, or a file for each document; standard error for errors.
///
/// A reader that goes before the end, as `head` does, has what it wants: that is no failure.
class DirectOutput final : public Output {
public:
    /// Without files it is standard output. `files` has to outlive it.
    explicit DirectOutput(std::vector<std::string> const& outputFiles) : files(outputFiles) {}

    ExitStatus write(std::size_t i, std::string_view text) override;
    void report(std::string const& errors) override;
    /// False where standard output has failed.
    bool isOpen() const override { return isWanted; }

private:
    std::vector<std::string> const& files;
    bool isWanted = true;
};
