#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

/// Notices when files change, come or go, however they are saved: it watches the directories on the
/// way to each file, and on the ways of links, for the name that comes next.
class FileWatch {
public:
    FileWatch() = default;
    FileWatch(FileWatch const&) = delete;
    FileWatch& operator=(FileWatch const&) = delete;
    ~FileWatch();

    /// Watches these files, and no others from now on. To be called again after each change, which
    /// may have put other directories in the place of those watched. Returns 0, or the `errno` that
    /// tells why the directory of a file, which is there, cannot be watched.
    int follow(std::vector<std::string> const& files);
    /// Reads what has happened. Returns whether any of it is about the files.
    bool readChanges();
    /// Readable when something has happened.
    int descriptor() const { return queue; }

private:
    int followWay(std::string const& file, unsigned& links);
    int followName(std::string const& directory, std::string const& name);
    bool isAboutFiles(int watch, std::string const& name) const;

    /// -1 before anything is followed.
    int queue = -1;
    /// The names that count in each directory, by its watch.
    std::map<int, std::set<std::string>> names;
};
