#include "cli/FileWatch.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

namespace {

/// A file that is being written changes when it is closed, and not before.
constexpr std::uint32_t s_changes =
    IN_CLOSE_WRITE | IN_ATTRIB | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_ONLYDIR;

/// On the way to a file, as the kernel has it.
constexpr unsigned s_mostLinks = 40;

bool isAbsence(int fault) { return fault == ENOENT || fault == ENOTDIR; }

}  // namespace

FileWatch::~FileWatch() {
    if (queue >= 0) close(queue);
}

int FileWatch::follow(std::vector<std::string> const& files) {
    if (queue < 0) queue = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    if (queue < 0) return errno;
    std::map<int, std::set<std::string>> const former = std::exchange(names, {});
    int fault = 0;
    for (std::string const& file : files) {
        unsigned links = s_mostLinks;
        int const failure = followWay(file, links);
        if (fault == 0 && !isAbsence(failure)) fault = failure;
    }
    for (auto const& [watch, unused] : former) {
        if (names.count(watch) == 0) inotify_rm_watch(queue, watch);
    }
    return fault;
}

/// Returns what `followName` does for the last name: directories above need not be readable.
int FileWatch::followWay(std::string const& file, unsigned& links) {
    int fault = 0;
    for (std::size_t start = 0; start < file.length();) {
        std::size_t const end = std::min(file.find('/', start), file.length());
        std::string const directory = start == 0 ? "./" : file.substr(0, start);
        if (end > start) fault = followName(directory, file.substr(start, end - start));
        std::error_code isNoLink;
        std::string const target = std::filesystem::read_symlink(file.substr(0, end), isNoLink);
        if (!isNoLink && links > 0) {
            --links;
            fault = followWay(target[0] == '/' ? target : directory + target, links);
        }
        start = end + 1;
    }
    return fault;
}

int FileWatch::followName(std::string const& directory, std::string const& name) {
    int const watch = inotify_add_watch(queue, directory.c_str(), s_changes);
    if (watch < 0) return errno;
    names[watch].insert(name);
    return 0;
}

/// Without a name it is about the directory itself, and without a watch all may have changed: the
/// queue was too short.
bool FileWatch::isAboutFiles(int watch, std::string const& name) const {
    auto const watched = names.find(watch);
    if (watched == names.end()) return watch < 0;
    return name.empty() || watched->second.count(name) > 0;
}

bool FileWatch::readChanges() {
    bool isOurs = false;
    alignas(inotify_event) char events[16384];
    ssize_t length = 0;
    while ((length = read(queue, events, sizeof events)) > 0) {
        std::string_view rest(events, static_cast<std::size_t>(length));
        while (!rest.empty()) {
            inotify_event event = {};
            std::memcpy(&event, rest.data(), sizeof event);
            isOurs =
                isOurs || isAboutFiles(event.wd, event.len > 0 ? rest.data() + sizeof event : "");
            rest.remove_prefix(sizeof event + event.len);
        }
    }
    return isOurs;
}
