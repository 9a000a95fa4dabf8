#include "cli/sheets.h"

#include <cstring>
#include <new>

#include "cli/files.h"
#include "cli/report.h"
#include "cli/terminal/addSheet.h"
#include "cli/terminal/controls.h"

namespace {

using CLI::XML::StyleList;

ExitStatus readSheet(std::string const& file, bool isRaw, StyleList& styles, Output& output) {
    String css;
    if (int const fault = readFile(file, css)) {
        output.report(errorText(inputName(file), std::strerror(fault)));
        return ExitStatus::FileAtFault;
    }
    if (!isRaw) CLI::XML::replaceControls(css);
    XCode const result = CLI::XML::addSheet(styles, css);
    if (!result) {
        output.report(
            errorText(inputName(file), result.getString().c_str(), css.view(), SourceKind::Sheet));
        return ExitStatus::InputAtFault;
    }
    return ExitStatus::Rendered;
}

}  // namespace

ExitStatus readSheets(Options const& options, StyleList& styles, Output& output) {
    ExitStatus status = ExitStatus::Rendered;
    for (std::string const& sheet : options.sheets) {
        ExitStatus const read = readSheet(sheet, options.isRaw, styles, output);
        if (status == ExitStatus::Rendered) status = read;
    }
    return status;
}
