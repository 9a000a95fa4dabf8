#include "cli/writeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

namespace {

constexpr mode_t s_anyMode = 0666;
constexpr mode_t s_permissions = 0777;

int writeAll(int file, std::string_view content) {
    while (!content.empty()) {
        ssize_t const written = write(file, content.data(), content.length());
        if (written >= 0) content.remove_prefix(static_cast<std::size_t>(written));
        if (written < 0 && errno != EINTR) return errno;
    }
    return 0;
}

/// Writes everything and closes the file.
int finish(int file, std::string_view content) {
    int const fault = writeAll(file, content);
    bool const isClosed = close(file) == 0;
    return fault == 0 && !isClosed ? errno : fault;
}

int writeStraight(std::string const& name, std::string_view content) {
    int const file = open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, s_anyMode);
    return file < 0 ? errno : finish(file, content);
}

/// The open file that a name as /dev/stdout stands for. To open that name would begin the file
/// anew, and to replace it would leave its other writers with a file without a name.
std::optional<int> descriptorOf(std::string_view name) {
    if (name == "/dev/stdout") return STDOUT_FILENO;
    if (name == "/dev/stderr") return STDERR_FILENO;
    for (std::string_view const folder : {"/dev/fd/", "/proc/self/fd/"}) {
        if (name.substr(0, folder.length()) != folder) continue;
        int descriptor = 0;
        char const* const end = name.data() + name.length();
        auto const read = std::from_chars(name.data() + folder.length(), end, descriptor);
        if (read.ec == std::errc() && read.ptr == end) return descriptor;
    }
    return std::nullopt;
}

int writeTo(int descriptor, std::string_view content) {
    int const file = fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    return file < 0 ? errno : finish(file, content);
}

/// Gives a file owner and permissions of another one. Only root may give it to somebody else.
bool makeAlike(int file, struct stat const& other) {
    bool const isOwned = fchown(file, other.st_uid, other.st_gid) == 0 || errno == EPERM;
    return isOwned && fchmod(file, other.st_mode & s_permissions) == 0;
}

/// Calls `create` with names that are not used otherwise in `folder`, until there was no such file.
/// Returns what it did, and sets `name`.
template <class Create>
int createNew(std::string const& folder, std::string& name, Create const& create) {
    for (unsigned i = 0;; ++i) {
        name = folder + ".galley-" + std::to_string(getpid()) + "-" + std::to_string(i);
        int const result = create(name.c_str());
        if (result >= 0 || errno != EEXIST) return result;
    }
}

/// A file that has no name until it is whole: whatever ends the program, nothing of it stays. Fails
/// where the file system has no such files, or there is no way to give them a name.
int openUnnamed(std::string const& folder) {
    if (access("/proc/self/fd", X_OK) != 0) return -1;
    int const flags = O_WRONLY | O_TMPFILE | O_CLOEXEC;
    return open(folder.empty() ? "." : folder.c_str(), flags, s_anyMode);
}

/// `existing` is what stands there now, if anything.
int replaceFile(std::string const& name, std::string_view content, struct stat const* existing) {
    // A rename stays within a file system.
    std::string const folder = name.substr(0, name.find_last_of('/') + 1);
    std::string temporary;
    int file = openUnnamed(folder);
    bool const isUnnamed = file >= 0;
    if (!isUnnamed) {
        file = createNew(folder, temporary, [](char const* newName) {
            return open(newName, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, s_anyMode);
        });
    }
    if (file < 0) return errno;

    int fault = existing == nullptr || makeAlike(file, *existing) ? 0 : errno;
    if (fault == 0) fault = writeAll(file, content);
    if (fault == 0 && isUnnamed) {
        std::string const itself = "/proc/self/fd/" + std::to_string(file);
        int const result = createNew(folder, temporary, [&](char const* newName) {
            return linkat(AT_FDCWD, itself.c_str(), AT_FDCWD, newName, AT_SYMLINK_FOLLOW);
        });
        if (result != 0) fault = errno;
    }
    int const closing = finish(file, {});
    if (fault == 0) fault = closing;
    if (fault == 0 && std::rename(temporary.c_str(), name.c_str()) != 0) fault = errno;
    if (fault != 0) unlink(temporary.c_str());
    return fault;
}

}  // namespace

int writeFile(std::string const& name, std::string_view content) {
    if (auto const descriptor = descriptorOf(name)) return writeTo(*descriptor, content);
    struct stat existing = {};
    bool const isThere = stat(name.c_str(), &existing) == 0;
    if (!isThere && lstat(name.c_str(), &existing) != 0) return replaceFile(name, content, nullptr);
    // A link to what is not there yet is no regular file either.
    if (!S_ISREG(existing.st_mode)) return writeStraight(name, content);
    // To replace it takes a directory that may be written, but it is asked for, too.
    if (access(name.c_str(), W_OK) != 0) return errno;
    std::error_code fault;
    std::string const target = std::filesystem::canonical(name, fault);
    return fault ? fault.value() : replaceFile(target, content, &existing);
}
