#include "cli/DirectOutput.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "cli/files.h"
#include "cli/report.h"
#include "cli/writeFile.h"

ExitStatus DirectOutput::write(std::size_t i, std::string_view text) {
    int const fault = files.empty() ? writeOutput(text) : writeFile(files[i], text);
    if (fault == 0) return ExitStatus::Rendered;
    isWanted = !files.empty();
    if (fault == EPIPE) return ExitStatus::Rendered;
    report(errorText(files.empty() ? "<stdout>" : files[i], std::strerror(fault)));
    return ExitStatus::FileAtFault;
}

void DirectOutput::report(std::string const& errors) {
    std::fwrite(errors.data(), 1, errors.length(), stderr);
}
