// The tool: any number of documents and sheets, a page for each document.

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <new>

#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/files.h"
#include "cli/render.h"
#include "cli/renderInOrder.h"
#include "cli/report.h"
#include "cli/sheets.h"
#include "cli/writeFile.h"

namespace {

ExitStatus write(String const& text, std::string const& file) {
    int const fault = file.empty() ? writeOutput(text.view()) : writeFile(file, text.view());
    if (fault == 0) return ExitStatus::Rendered;
    reportError(file.empty() ? "<stdout>" : displayName(file), std::strerror(fault));
    return ExitStatus::FileAtFault;
}

ExitStatus makeDirectory(std::string const& directory) {
    std::error_code fault;
    if (!directory.empty()) std::filesystem::create_directories(directory, fault);
    if (!fault) return ExitStatus::Rendered;
    reportError(displayName(directory), std::strerror(fault.value()));
    return ExitStatus::FileAtFault;
}

/// Renders every document and returns the status of the first failure.
ExitStatus renderAll(Options const& options, CLI::XML::StyleList const& styles) {
    Manner const manner(options);
    ExitStatus status = ExitStatus::Rendered;
    std::size_t i = 0;
    auto const make = [&](std::size_t n) { return render(options.documents[n], styles, manner); };
    auto const take = [&](Rendering const& rendering) {
        std::string const file = options.files.empty() ? "" : options.files[i];
        ++i;
        std::fwrite(rendering.error.data(), 1, rendering.error.length(), stderr);
        ExitStatus result = rendering.status;
        if (result == ExitStatus::Rendered && !options.isCheck)
            result = write(rendering.text, file);
        if (status == ExitStatus::Rendered) status = result;
        // A standard output that has failed takes nothing more.
        return result == rendering.status || !options.files.empty();
    };
    renderInOrder(options.documents.size(), options.jobs, make, take);
    return status;
}

ExitStatus run(Options const& options) {
    CLI::XML::StyleList styles;
    ExitStatus status = readSheets(options, styles);
    if (status == ExitStatus::Rendered) status = makeDirectory(options.directory);
    if (status != ExitStatus::Rendered && !options.isCheck) return status;
    ExitStatus const rendered = renderAll(options, styles);
    return status == ExitStatus::Rendered ? rendered : status;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    std::optional<ExitStatus> status = parseCommandLine(argc, argv, options);
    if (!status) {
        try {
            status = run(options);
        } catch (std::bad_alloc const&) {
            reportError("galley", "Out of memory");
            status = ExitStatus::InputAtFault;
        }
    }
    return static_cast<int>(*status);
}
