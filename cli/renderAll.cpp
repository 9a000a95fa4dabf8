#include "cli/renderAll.h"

#include <cstring>
#include <filesystem>

#include "cli/render.h"
#include "cli/renderInOrder.h"
#include "cli/report.h"
#include "cli/sheets.h"

namespace {

ExitStatus makeDirectory(std::string const& directory, Output& output) {
    std::error_code fault;
    if (!directory.empty()) std::filesystem::create_directories(directory, fault);
    if (!fault) return ExitStatus::Rendered;
    output.report(errorText(directory, std::strerror(fault.value())));
    return ExitStatus::FileAtFault;
}

ExitStatus renderDocuments(Options const& options, galley::Sheet const& sheet, Output& output) {
    Manner const manner(options);
    ExitStatus status = ExitStatus::Rendered;
    std::size_t i = 0;
    auto const make = [&](std::size_t n) { return render(options.documents[n], sheet, manner); };
    auto const take = [&](Rendering const& rendering) {
        ExitStatus result = rendering.status;
        if (!rendering.error.empty()) output.report(rendering.error);
        bool const isMade = result == ExitStatus::Rendered && !options.isCheck;
        if (isMade) result = output.write(i, rendering.text.view());
        ++i;
        if (status == ExitStatus::Rendered) status = result;
        return output.isOpen();
    };
    renderInOrder(options.documents.size(), options.jobs, make, take);
    return status;
}

}  // namespace

ExitStatus renderAll(Options const& options, Output& output) {
    galley::Sheet sheet;
    ExitStatus status = readSheets(options, sheet, output);
    if (status == ExitStatus::Rendered) status = makeDirectory(options.directory, output);
    if (status != ExitStatus::Rendered && !options.isCheck) return status;
    ExitStatus const rendered = renderDocuments(options, sheet, output);
    return status == ExitStatus::Rendered ? rendered : status;
}
