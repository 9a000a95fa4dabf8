#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace CLI::XML {

/// A page of the core in `examples/`, and the sheet beside it, empty where there is none.
struct Example {
    std::string name;
    std::string markup;
    std::string css;
};

/// All of them, in the order of their names.
inline std::vector<Example> examples() {
    auto const contentOf = [](std::filesystem::path const& file) {
        std::ifstream stream(file);
        return std::string(std::istreambuf_iterator<char>(stream), {});
    };
    std::vector<Example> found;
    std::filesystem::path const folder = GALLEY_SOURCE_DIR "/examples/core";
    for (auto const& entry : std::filesystem::recursive_directory_iterator(folder)) {
        std::filesystem::path file = entry.path();
        if (file.extension() != ".xml") continue;
        std::string const name = file.lexically_relative(folder).string();
        std::string const markup = contentOf(file);
        found.push_back({name, markup, contentOf(file.replace_extension(".css"))});
    }
    std::sort(found.begin(), found.end(),
              [](Example const& a, Example const& b) { return a.name < b.name; });
    EXPECT_GT(found.size(), 1);
    return found;
}

}  // namespace CLI::XML
