#include <tuple>
#include <utility>

#include "base/MovePtr.h"
#include "base/RefCounted.h"
#include "base/ZRLWPtr.h"
#include "base/ZRLock.h"
#include "tests/support/text.h"

namespace {

/// Writes what happens to it into a log; at its end also whether `holder` holds another by then.
struct Counted : ZR::RefCounted {
    using Holder = ZRLWPtr<Counted>;

    explicit Counted(std::string& events, ZRLock* guard = nullptr, Holder* by = nullptr)
        : ZR::RefCounted(guard), log(events), holder(by) {}
    ~Counted() override { log += holder != nullptr && holder->object != this ? "left " : "gone "; }
    void addRef() override {
        log += "add ";
        RefCounted::addRef();
    }
    bool tryRelease() override {
        log += "drop ";
        return RefCounted::tryRelease();
    }
    std::string& log;
    Holder* holder;
};

using Pointer = ZRLWPtr<Counted>;
using Move = ZR::MovePtr<Counted>;

TEST(ReferenceCount, StartsWithTheOneThatTheFirstHolderAdopts) {
    std::string log;
    {
        Pointer first = Move(new Counted(log));
        Pointer second = first;
        ZRLWPtr<ZR::RefCounted> const base = second;
        Pointer const moved = std::move(second);
        EXPECT_EQ(first->refCount, 3);
    }
    EXPECT_EQ(log, "add add drop drop drop gone ");
}

TEST(ReferenceCount, DoesNotChangeForThePointerHeldAlready) {
    std::string log;
    Pointer holder = Move(new Counted(log));
    holder = *&holder;
    holder.setObj(holder.object);
    holder.setObjDontAddRef(holder.object);
    holder = Move(holder.object);
    EXPECT_EQ(log, "");
}

TEST(ReferenceCount, OfTheFormerObjectDropsLast) {
    std::string log;
    Pointer const shared = Move(new Counted(log));
    Pointer holder;
    holder = Move(new Counted(log, nullptr, &holder));
    holder = shared;
    EXPECT_EQ(log, "add drop left ");
    holder = Move(new Counted(log, nullptr, &holder));
    holder.setObjDontAddRef(new Counted(log, nullptr, &holder));
    holder.setObj(nullptr);
    EXPECT_EQ(log, "add drop left drop drop left drop left ");
    EXPECT_EQ(shared->refCount, 1);
}

struct LoggedLock : ZRLock {
    LoggedLock(std::string& events, int code) : log(events), answer(code) {}
    XCode lock() override {
        log += "lock ";
        return XCode(answer);
    }
    void unlock() override { log += "unlock "; }
    std::string& log;
    int answer;
};

TEST(ProtectedRelease, HoldsTheLockUntilTheObjectIsGone) {
    using Case = std::tuple<bool, int, char const*>;
    for (auto const& [hasLock, answer, expected] :
         {Case(false, 0, "drop drop gone "), Case(true, -1, "lock drop lock drop gone "),
          Case(true, 0, "lock drop unlock lock drop gone unlock ")}) {
        std::string log;
        LoggedLock guard(log, answer);
        auto* const object = new Counted(log, hasLock ? &guard : nullptr);
        object->refCount = 2;
        object->securedProtectedRelease();
        object->protectedRelease();
        EXPECT_EQ(log, expected);
    }
}

}  // namespace
