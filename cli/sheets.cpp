#include "cli/sheets.h"

#include <cstring>

#include "cli/files.h"
#include "cli/report.h"

namespace {

ExitStatus readSheet(std::string const& file, Options const& options, galley::Dialect dialect,
                     galley::Sheet& sheet, Output& output) {
    String css;
    if (int const fault = readFile(file, css)) {
        output.report(errorText(inputName(file), std::strerror(fault)));
        return ExitStatus::FileAtFault;
    }
    auto const added = galley::Sheet::parse(css.view(), inputName(file), dialect);
    if (added) sheet += *added;
    auto const found =
        options.isCheck ? galley::checkSheet(css.view(), inputName(file), dialect) : added.errors();
    if (!found.empty()) output.report(textOf(found));
    return statusOf(found, options.isStrict);
}

}  // namespace

ExitStatus readSheets(Options const& options, galley::Dialect dialect, galley::Sheet& sheet,
                      Output& output) {
    ExitStatus status = ExitStatus::Rendered;
    for (std::string const& file : options.sheets) {
        ExitStatus const read = readSheet(file, options, dialect, sheet, output);
        if (status == ExitStatus::Rendered) status = read;
    }
    return status;
}
