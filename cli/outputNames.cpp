#include "cli/outputNames.h"

#include <sys/stat.h>

#include <algorithm>
#include <set>
#include <utility>

namespace {

using galley::Format;

std::string nameInDirectory(std::string const& document, Options const& options) {
    std::string const name =
        document == "-" ? "stdin" : document.substr(document.find_last_of('/') + 1);
    std::size_t const dot = name.find_last_of('.');
    bool const hasExtension = dot != std::string::npos && dot > 0;
    char const* const extension = options.format == Format::html  ? ".html"
                                  : options.format == Format::svg ? ".svg"
                                                                  : ".txt";
    return options.directory + "/" + (hasExtension ? name.substr(0, dot) : name) + extension;
}

/// The first name that is there twice; empty where all differ.
std::string firstDuplicate(std::vector<std::string> const& names) {
    std::set<std::string> seen;
    auto const found = std::find_if(names.begin(), names.end(),
                                    [&](auto const& name) { return !seen.insert(name).second; });
    return found != names.end() ? *found : "";
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

std::string nameOutputs(Options& options) {
    bool const hasMany = options.documents.size() > 1;
    if (options.files.empty() && options.directory.empty()) {
        bool const isOneFile = options.format == galley::Format::svg && !options.isCheck;
        return hasMany && isOneFile ? "--format: several pictures need --output-dir" : "";
    }
    if (!options.directory.empty()) {
        for (std::string const& document : options.documents) {
            options.files.push_back(nameInDirectory(document, options));
        }
        std::string const twice = firstDuplicate(options.files);
        if (!twice.empty()) return "--output-dir: two documents for " + twice;
    } else if (hasMany) {
        return "--output: several documents need --output-dir";
    }
    std::string const overwritten = firstOverwritten(options);
    return overwritten.empty() ? "" : "'" + overwritten + "' is also read";
}
