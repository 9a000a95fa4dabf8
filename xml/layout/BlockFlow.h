#pragma once

#include <string_view>
#include <vector>

#include "xml/layout/BlockBox.h"
#include "xml/layout/LineBox.h"
#include "xml/layout/Words.h"
#include "xml/layout/placement.h"

namespace CLI::XML {

/// The layout of a block, step by step: the children go in one after the other, are laid out one
/// below the other, and lines that are too wide are broken. What has got its place goes to a
/// `Taker`.
///
/// The last line may stay open while boxes still arrive on it: then everything that follows is
/// laid out only once it is closed.
class BlockFlow {
public:
    /// Receives each box when it has got its place, in the order of the finished block. Flows of
    /// which only one is at work may share one.
    class Taker {
    public:
        Taker() = default;
        Taker(Taker const&) = delete;
        Taker& operator=(Taker const&) = delete;
        virtual ~Taker() = default;
        virtual void take(ZRLWPtr<Box> box) = 0;

    private:
        friend class BlockFlow;
        /// What is still to be placed, the next one last. The open line is the first.
        std::vector<ZRLWPtr<Box>> pending;
        /// How often the open line was broken.
        unsigned breaks = 0;
        /// There are only words and inline elements on the open line, which are laid out alike
        /// however often that is done.
        bool hasOnlyInline = true;
        /// Columns that the contents on the open line have left.
        std::int64_t room = 0;
    };

    /// Begins the layout of `laidOut`. All three must outlive the flow.
    BlockFlow(BlockBox& laidOut, Dimensions const& containing, Taker& boxTaker);

    /// Lays out `child` and whatever is broken off it.
    Walk add(ZRLWPtr<Box> const& child, LayoutPass pass);

    /// Puts an inline box at the end of the open line, which is begun where there is none, and
    /// breaks off what is certain not to stay on it, whatever follows. Nothing on the line may have
    /// a negative edge. `holdsOnlyInline` tells that there is neither block nor table in the box.
    void addToLine(ZRLWPtr<Box> box, bool holdsOnlyInline);
    /// The same for as many words as fit and one more, which shows that it does not. Only the last
    /// of all may be without its one space. Returns the bytes that were taken.
    std::size_t addWords(std::string_view words, Words& source);
    /// The same for a word that may be anything.
    void addWord(std::string_view word, Words& source);
    /// Lays out what is left of the open line, if there is one.
    void closeLine();

    /// The same for a block that is laid out by a flow of its own: sets its position, and takes it
    /// in when it has its size.
    void place(BlockBox& child) const { stack.place(child.dimensions); }
    void take(BlockBox const& child) { stack.add(child.dimensions); }

    /// Gives the block its width.
    void finish();

private:
    /// What `placePending` knows from box to box.
    struct Placing {
        LayoutPass pass;
        /// Boxes that stay pending.
        std::size_t kept = 0;
        /// The box that is next has been too wide, however often it was laid out.
        bool staysTooWide = false;
    };

    /// The width that the children are offered, in columns: what they read from the block.
    std::int32_t available() const { return block.dimensions.content.width; }
    void beginLine();
    /// Of the open line.
    Words::Boxes& lineBoxes() const { return taker.pending.front()->children; }
    void takeWords(std::string_view words);
    void breakLine();
    void measure(Box& box, bool holdsOnlyInline) const;
    LayoutPass passAfterBreak(bool isLimited) const;
    Walk placePending(LayoutPass pass, std::size_t kept);
    Walk placeRemaining(Placing placing, Walk layoutOfNext);
    bool isTooWide(Box const& box) const { return box.dimensions.marginBox().width > available(); }
    Walk layOutNext(Placing& placing);
    bool breakNext(Placing& placing);
    bool takeNext(Placing& placing);
    void findRoom();

    BlockBox& block;
    Taker& taker;
    DownwardStack stack;
};

}  // namespace CLI::XML
