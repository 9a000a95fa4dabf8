#pragma once

#include <atomic>

#include "../../base/RefCounted.h"
#include "../../base/ZRLWPtr.h"
#include "../../base/ZRList.h"
#include "../../base/ZRStringHashTable.h"
#include "../../base/export.h"

namespace CLI::XML {

/// One style rule. It is complete when it enters a rule list and does not change afterwards, so
/// that conversions on several threads may share it: its references alone are counted atomically.
class GALLEY_EXPORT StyleNode final : public ZR::RefCounted {
public:
    /// Matched against tag names by exact equality.
    String selector;
    /// Property name to value, both as written; a property occurs at most once.
    ZRStringHashTable<String> declarations;

    /// A rule without declarations.
    explicit StyleNode(String const& selectorText)
        : ZR::RefCounted(nullptr), selector(selectorText) {}
    ~StyleNode() override = default;

    /// May be called on any thread that holds a reference, as `release` may.
    void addRef() override { std::atomic_ref(refCount).fetch_add(1, std::memory_order_relaxed); }
    bool tryRelease() override {
        // Whoever destroys the rule comes behind all that others did with it.
        return std::atomic_ref(refCount).fetch_sub(1, std::memory_order_acq_rel) == 1;
    }
};

/// Style rules in sheet order.
using StyleList = ZRList<ZRLWPtr<StyleNode>>;

}  // namespace CLI::XML
