#include "cli/dumpTree.h"

#include "galley/SheetAccess.h"
#include "galley/convert.h"
#include "galley/dialect.h"
#include "galley/webPage.h"
#include "xml/dom/buildDomTree.h"
#include "xml/layout/boxes.h"

namespace {

XCode dump(String& tree, String const& markup, Product product, CLI::XML::StyleList const& rules,
           unsigned width) {
    ZRLWPtr<CLI::XML::DomElement> root;
    CLI::XML::PullParser parser = CLI::XML::PullParser::withoutCopy(markup);
    XCode result = CLI::XML::buildDomTree(root, true, parser, rules);
    if (!result) return result;
    if (product == Product::DocumentTree) {
        tree = root->dump(0);
        return result;
    }
    CLI::XML::BlockBox rootBox(root.object);
    result = rootBox.createChildren();
    if (!result) return result;
    rootBox.layout(CLI::XML::pageOfWidth(width));
    tree = rootBox.dump(0);
    return result;
}

}  // namespace

galley::Result<void> dumpTree(String& tree, String& markup, Product product,
                              galley::Sheet const& sheet, galley::Options const& options) {
    galley::Result<galley::Dialect> const dialect = galley::dialectOf(markup.view(), options);
    if (!dialect) return galley::Result<void>(dialect.errors());
    bool const isWeb = *dialect == galley::Dialect::web;
    if (isWeb != (product == Product::StyleTree)) {
        return galley::Result<void>(
            galley::failure(options.name, isWeb ? "Of the dialect web there is --dump tree alone"
                                                : "--dump tree is for the dialect web"));
    }
    if (isWeb) return galley::makeWebTree(tree, markup.view(), sheet, options);
    return galley::convert(tree, markup, options, [&](String const& cleaned) {
        CLI::XML::StyleList const& rules = galley::SheetAccess::rules(sheet, options.raw);
        return dump(tree, cleaned, product, rules, options.width);
    });
}
