#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a person asks a screen for.
enum class Key { Up, Down, PageUp, PageDown, Home, End, Quit };

/// Makes keys of the bytes that a terminal sends for them.
class KeyReader {
public:
    /// The keys whose last byte is in `bytes`; what stands for none is left out. What has begun at
    /// its end goes on with the next bytes.
    std::vector<Key> read(std::string_view bytes);

private:
    std::string pending;
};
