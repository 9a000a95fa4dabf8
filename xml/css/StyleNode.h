#pragma once

#include "base/RefCounted.h"
#include "base/ZRLWPtr.h"
#include "base/ZRList.h"
#include "base/ZRStringHashTable.h"

namespace CLI::XML {

/// One style rule. It is complete when it enters a rule list and does not change afterwards.
class StyleNode final : public ZR::RefCounted {
public:
    /// Matched against tag names by exact equality.
    String selector;
    /// Property name to value, both as written; a property occurs at most once.
    ZRStringHashTable<String> declarations;

    explicit StyleNode(String const& selectorText)
        : ZR::RefCounted(nullptr), selector(selectorText) {}
    ~StyleNode() override = default;
};

/// Style rules in sheet order.
using StyleList = ZRList<ZRLWPtr<StyleNode>>;

}  // namespace CLI::XML
