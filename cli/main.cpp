// The tool: any number of documents and sheets, a page for each document.

#include <unistd.h>

#include <csignal>
#include <new>

#include "cli/DirectOutput.h"
#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/pager.h"
#include "cli/renderAll.h"
#include "cli/report.h"
#include "cli/watch.h"

namespace {

ExitStatus run(Options const& options) {
    if (options.isWatched) return watch(options);
    if (options.isPaged && isatty(STDOUT_FILENO) == 1) return renderInPager(options);
    DirectOutput output(options.files);
    return renderAll(options, output);
}

}  // namespace

int main(int argc, char** argv) {
    // Writing to a pipe without a reader, or more than is allowed, then fails as any writing does.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    Options options;
    std::optional<ExitStatus> status;
    try {
        status = parseCommandLine(argc, argv, options);
        if (!status) status = run(options);
    } catch (std::bad_alloc const&) {
        reportError("galley", "Out of memory");
        status = ExitStatus::InputAtFault;
    }
    return static_cast<int>(*status);
}
