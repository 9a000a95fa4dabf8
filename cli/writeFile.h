#pragma once

#include <string>
#include <string_view>

/// Gives a file a new content, whole or not at all: whoever opens it sees the former one or all of
/// the new one, and nothing else is left in its directory, which must be writable. An existing file
/// keeps its permissions; a new one gets what the umask leaves.
///
/// A symbolic link stays as it is, and the file that it leads to changes. What is no regular file,
/// a device or a pipe, is written straight to.
/// Returns 0, or the `errno` that tells why it failed.
int writeFile(std::string const& name, std::string_view content);
