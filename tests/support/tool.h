#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

/// Runs the tool in a folder of its own, as a shell would.
class Tool : public testing::Test {
protected:
    Tool() {
        std::string name = testing::TempDir() + "galley-XXXXXX";
        folder = mkdtemp(name.data());
    }
    ~Tool() override { std::filesystem::remove_all(folder); }

    void write(std::string const& name, std::string const& text) const {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    std::string read(std::string const& name) const {
        std::ifstream file(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// `before` are commands of the shell, each with its semicolon.
    Outcome run(std::string const& arguments, std::string const& input = "",
                std::string const& before = "", std::string const& program = GALLEY_TOOL) const {
        write("stdin", input);
        std::string const command = "cd " + folder.string() + " && { " + before + program + " " +
                                    arguments + "; } <stdin 2>stderr >stdout";
        int const status = std::system(command.c_str());
        return {WEXITSTATUS(status), read("stdout"), read("stderr")};
    }

    std::filesystem::path folder;
};

/// Runs it on documents and sheets of the core.
class CoreTool : public Tool {
protected:
    Outcome run(std::string const& arguments, std::string const& input = "",
                std::string const& before = "", std::string const& program = GALLEY_TOOL) const {
        return Tool::run("--dialect core " + arguments, input, before, program);
    }
};
