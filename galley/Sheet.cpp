#include "base/append.h"
#include "galley/SheetAccess.h"
#include "galley/check/find.h"
#include "galley/cleanSource.h"
#include "galley/diagnose.h"
#include "galley/failure.h"
#include "galley/webPage.h"
#include "xml/css/parseCss.h"

namespace galley {

namespace {

using CLI::XML::StyleList;

void addRules(StyleList& rules, StyleList const& others) {
    for (auto const& rule : others) rules.add(rule);
}

}  // namespace

Result<Sheet> Sheet::parse(std::string_view css, std::string_view name, Dialect dialect) {
    return guarded(name, [&]() -> Result<Sheet> {
        auto made = std::make_shared<Rules>();
        made->texts.push_back(std::make_shared<Rules::Text const>(
            Rules::Text{std::string(name), std::string(css), dialect}));
        Sheet sheet;
        if (dialect == Dialect::web) {
            std::vector<web::Problem> problems;
            made->web.push_back(
                std::make_shared<web::Sheet const>(web::Sheet::parse(withoutMark(css), problems)));
            sheet.rules = std::move(made);
            return sheet;
        }
        String text;
        CLI::XML::append(text, css);
        bool const isCleaned = cleanSource(text, false);
        if (!CLI::XML::parseCss(made->shown, text)) {
            Findings findings = findInSheet(text.view());
            std::erase_if(findings,
                          [](Finding const& f) { return f.kind != Finding::Kind::Error; });
            return Result<Sheet>(diagnose(findings, {name, text.view()}));
        }
        if (isCleaned) {
            text.assign(css);
            cleanSource(text, true);
            CLI::XML::parseCss(made->raw, text);
        } else {
            addRules(made->raw, made->shown);
        }
        sheet.rules = std::move(made);
        return sheet;
    });
}

Sheet& Sheet::operator+=(Sheet const& other) {
    if (!other.rules) return *this;
    if (!rules) return *this = other;
    auto joined = std::make_shared<Rules>();
    for (Rules const* part : {rules.get(), other.rules.get()}) {
        addRules(joined->shown, part->shown);
        addRules(joined->raw, part->raw);
        joined->web.insert(joined->web.end(), part->web.begin(), part->web.end());
        joined->texts.insert(joined->texts.end(), part->texts.begin(), part->texts.end());
    }
    rules = std::move(joined);
    return *this;
}

StyleList const& SheetAccess::rules(Sheet const& sheet, bool isRaw) {
    static StyleList const s_none;
    if (!sheet.rules) return s_none;
    return isRaw ? sheet.rules->raw : sheet.rules->shown;
}

std::vector<std::shared_ptr<Sheet::Rules::Text const>> const& SheetAccess::texts(
    Sheet const& sheet) {
    static std::vector<std::shared_ptr<Sheet::Rules::Text const>> const s_none;
    return sheet.rules ? sheet.rules->texts : s_none;
}

std::vector<web::Sheet const*> SheetAccess::webSheets(Sheet const& sheet) {
    std::vector<web::Sheet const*> sheets;
    if (!sheet.rules) return sheets;
    for (auto const& each : sheet.rules->web) sheets.push_back(each.get());
    return sheets;
}

std::vector<Diagnostic> SheetAccess::misfits(Sheet const& sheet, Dialect dialect) {
    for (auto const& text : texts(sheet)) {
        if (text->dialect == dialect) continue;
        bool const isWeb = text->dialect == Dialect::web;
        return failure(text->name, isWeb
                                       ? "This sheet is of the dialect web, the document of core"
                                       : "This sheet is of the dialect core, the document of web");
    }
    return {};
}

}  // namespace galley
