#include "cli/outputNames.h"

#include <strings.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

namespace {

using galley::Format;
using std::filesystem::path;

/// The last part of a name.
std::string_view withoutFolders(std::string_view name) {
    return name.substr(name.find_last_of('/') + 1);
}

/// Of the last dot in a name without folders, unless the name begins with it; else its length.
std::size_t extensionStart(std::string_view name) {
    std::size_t const dot = name.find_last_of('.');
    return dot == std::string_view::npos || dot == 0 ? name.length() : dot;
}

std::string pageName(std::string const& document, Format format) {
    std::string_view const name = document == "-" ? "stdin" : withoutFolders(document);
    char const* const extension = format == Format::html  ? ".html"
                                  : format == Format::svg ? ".svg"
                                                          : ".txt";
    return std::string(name.substr(0, extensionStart(name))) + extension;
}

/// Where a document is, by names alone: absolute, without "." and "..". Standard input is here.
path folderOf(std::string const& document) {
    std::error_code ignored;
    return ("/" / std::filesystem::current_path(ignored) / document)
        .lexically_normal()
        .parent_path();
}

path commonFolder(path const& a, path const& b) {
    path common;
    auto const end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    for (auto part = a.begin(); part != end; ++part) common /= *part;
    return common;
}

/// A name for the page of each document: below the folder that all documents whose pages have that
/// name are in, the way to this one.
std::vector<path> namesInDirectory(std::vector<std::string> const& documents, Format format) {
    std::map<std::string, path> folders;
    for (std::string const& document : documents) {
        path const folder = folderOf(document);
        auto const [shared, isFirst] = folders.emplace(pageName(document, format), folder);
        if (!isFirst) shared->second = commonFolder(shared->second, folder);
    }
    std::vector<path> names;
    for (std::string const& document : documents) {
        std::string const name = pageName(document, format);
        path const way = folderOf(document).lexically_relative(folders[name]);
        names.push_back((way / name).lexically_normal());
    }
    return names;
}

/// What makes it impossible that all of `names` are files; empty where nothing does.
std::string firstCollision(std::string const& directory, std::vector<path> const& names) {
    std::set<path> files;
    for (path const& name : names) {
        if (!files.insert(name).second)
            return "two documents for " + directory + "/" + name.string();
    }
    for (path const& name : names) {
        for (path way = name.parent_path(); !way.empty(); way = way.parent_path()) {
            if (files.count(way) > 0)
                return directory + "/" + way.string() + " would be a page and a folder";
        }
    }
    return "";
}

/// Device and number of a regular file.
using FileId = std::pair<dev_t, ino_t>;

std::optional<FileId> fileId(std::string const& name) {
    struct stat status = {};
    if (stat(name.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return FileId(status.st_dev, status.st_ino);
}

/// The first output, of those named, that is one of the inputs; empty where none is.
std::string firstOverwritten(Options const& options) {
    std::set<FileId> read;
    for (auto const* inputs : {&options.documents, &options.sheets}) {
        for (std::string const& input : *inputs) {
            if (auto const id = fileId(input)) read.insert(*id);
        }
    }
    for (std::string const& file : options.files) {
        auto const id = fileId(file);
        if (id && read.count(*id) > 0) return file;
    }
    return "";
}

}  // namespace

galley::Format formatOf(std::string const& file) {
    constexpr std::pair<char const*, Format> s_extensions[] = {
        {".html", Format::html}, {".htm", Format::html}, {".svg", Format::svg}};
    std::string const name(withoutFolders(file));
    char const* const extension = name.c_str() + extensionStart(name);
    for (auto const& [known, format] : s_extensions) {
        if (strcasecmp(extension, known) == 0) return format;
    }
    return Format::ansi;
}

std::string nameOutputs(Options& options) {
    bool const hasMany = options.documents.size() > 1;
    if (options.files.empty() && options.directory.empty()) {
        bool const isOneFile = options.format == galley::Format::svg && !options.isCheck;
        return hasMany && isOneFile ? "--format: several pictures need --output-dir" : "";
    }
    if (!options.directory.empty()) {
        std::vector<path> const names = namesInDirectory(options.documents, options.format);
        std::string const collision = firstCollision(options.directory, names);
        if (!collision.empty()) return "--output-dir: " + collision;
        for (path const& name : names) {
            options.files.push_back(options.directory + "/" + name.string());
        }
    } else if (hasMany) {
        return "--output: several documents need --output-dir";
    }
    std::string const overwritten = firstOverwritten(options);
    return overwritten.empty() ? "" : "'" + overwritten + "' is also read";
}
