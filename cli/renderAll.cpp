#include "cli/renderAll.h"

#include <cstring>
#include <filesystem>
#include <set>
#include <string>
#include <system_error>
#include <utility>

#include "cli/files.h"
#include "cli/render.h"
#include "cli/renderInOrder.h"
#include "cli/report.h"
#include "cli/sheets.h"
#include "galley/dialect.h"

namespace {

/// Makes the directories that hold the files, unless a single file was named.
ExitStatus makeDirectories(Options const& options, Output& output) {
    if (options.directory.empty()) return ExitStatus::Rendered;
    std::set<std::string> folders;
    for (std::string const& file : options.files) {
        folders.insert(file.substr(0, file.find_last_of('/')));
    }
    for (std::string const& folder : folders) {
        std::error_code fault;
        std::filesystem::create_directories(folder, fault);
        if (!fault) continue;
        output.report(errorText(folder, std::strerror(fault.value())));
        return ExitStatus::FileAtFault;
    }
    return ExitStatus::Rendered;
}

/// The first document, where it has to be read before the sheets since it says their dialect.
class FirstDocument {
public:
    explicit FirstDocument(Options const& options) {
        if (options.dialect || options.sheets.empty()) return;
        if (readFile(options.documents.front(), markup) != 0)
            markup = String();
        else
            isRead = true;
    }

    /// What no document says is said of it when it is rendered.
    galley::Dialect dialect(Options const& options) const {
        galley::Options said;
        said.dialect = options.dialect;
        auto const found = galley::dialectOf(markup.view(), said);
        return found ? *found : galley::s_defaultDialect;
    }

    String markup;
    bool isRead = false;
};

ExitStatus renderDocuments(Options const& options, FirstDocument& first, galley::Sheet const& sheet,
                           Output& output) {
    Manner const manner(options);
    ExitStatus status = ExitStatus::Rendered;
    std::size_t i = 0;
    auto const make = [&](std::size_t n) {
        std::string const& document = options.documents[n];
        bool const isRead = n == 0 && first.isRead;
        return isRead ? renderRead(document, std::move(first.markup), sheet, manner)
                      : render(document, sheet, manner);
    };
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
    FirstDocument first(options);
    ExitStatus status = readSheets(options, first.dialect(options), sheet, output);
    if (status == ExitStatus::Rendered) status = makeDirectories(options, output);
    if (status != ExitStatus::Rendered && !options.isCheck) return status;
    ExitStatus const rendered = renderDocuments(options, first, sheet, output);
    return status == ExitStatus::Rendered ? rendered : status;
}
