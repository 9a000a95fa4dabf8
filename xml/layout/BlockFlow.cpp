#include "xml/layout/BlockFlow.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace CLI::XML {

namespace {

constexpr std::int32_t s_largestWidth = std::numeric_limits<std::int32_t>::max();

std::int32_t widthWithin(Dimensions const& containing, EdgeSizes const& edges) {
    return saturate(std::int64_t{containing.content.width} - edges.left - edges.right);
}

bool areSettled(ZRVector<ZRLWPtr<Box>> const& boxes) {
    return std::all_of(boxes.begin(), boxes.end(),
                       [](ZRLWPtr<Box> const& box) { return box->isSettled; });
}

/// Bytes of the words, from the first one on, that fit into `room` columns with their spaces.
std::size_t lengthWithin(std::string_view words, std::int64_t room) {
    if (room <= 0) return 0;
    return words.rfind(' ', static_cast<std::size_t>(room) - 1) + 1;
}

/// Where a line need not stay too wide, how wide it is tells where a pass that ends at the break
/// does not.
bool breaksByWidths(Box const& line) { return line.isMeasured && line.mayShrink; }

}  // namespace

BlockFlow::BlockFlow(BlockBox& laidOut, Dimensions const& containing, Taker& boxTaker)
    : block(laidOut), taker(boxTaker), stack(block.dimensions) {
    block.dimensions.content.width = widthWithin(containing, block.dimensions.edges());
    block.isSettled = true;
}

Walk BlockFlow::add(ZRLWPtr<Box> const& child, LayoutPass pass) {
    taker.pending.push_back(child);
    return placePending(pass, 0);
}

void BlockFlow::addToLine(ZRLWPtr<Box> box, bool holdsOnlyInline) {
    beginLine();
    measure(*box, holdsOnlyInline);
    taker.hasOnlyInline = taker.hasOnlyInline && holdsOnlyInline;
    taker.room -= box->dimensions.content.width;
    lineBoxes().add(std::move(box));
    breakLine();
}

std::size_t BlockFlow::addWords(std::string_view words, Words& source) {
    beginLine();
    std::size_t const fitting = lengthWithin(words, taker.room);
    std::size_t const length = fitting + Words::lengthOfWord(words, fitting);
    source.addWords(lineBoxes(), words.substr(0, length));
    takeWords(words.substr(0, length));
    return length;
}

void BlockFlow::addWord(std::string_view word, Words& source) {
    beginLine();
    source.addWord(lineBoxes(), word);
    takeWords(word);
}

void BlockFlow::takeWords(std::string_view words) {
    taker.room -= static_cast<std::int64_t>(words.length());
    breakLine();
}

void BlockFlow::beginLine() {
    if (!taker.pending.empty()) return;
    ZRLWPtr<Box> line = ZR::MovePtr<Box>(new LineBox);
    taker.pending.push_back(std::move(line));
    taker.breaks = 0;
    taker.hasOnlyInline = true;
    findRoom();
}

void BlockFlow::breakLine() {
    Box& line = *taker.pending.front();
    line.isSettled = false;
    line.isMeasured = false;
    if (taker.room >= 0 || available() == s_largestWidth) return;
    // It is too wide already, so that its layout would only be done again.
    bool const areBoxesSettled = taker.hasOnlyInline || areSettled(line.children);
    ZRLWPtr<Box> rest = line.split(available());
    if (!rest) return;
    taker.pending.insert(taker.pending.begin(), std::move(rest));
    ++taker.breaks;
    Walk::run(placePending(passAfterBreak(areBoxesSettled), 1));
    findRoom();
}

/// Every break of a line lays out what stays behind it, where the box would have been already.
/// Only a table that is not settled shows how often. Where there is none, measuring ends with the
/// first word that does not fit.
void BlockFlow::measure(Box& box, bool holdsOnlyInline) const {
    if (isLeaf(box)) {
        sizeLeaf(box);
        return;
    }
    bool const isLimited = holdsOnlyInline && available() < s_largestWidth;
    Walk::run(box.layOut(Dimensions(), {.isLimited = isLimited, .room = taker.room}));
    if (isLimited) return;
    for (unsigned i = 0; i < taker.breaks && !box.isSettled; ++i) {
        Walk::run(box.layOut(Dimensions(), {.again = true}));
    }
}

void BlockFlow::findRoom() {
    taker.room = available();
    for (ZRLWPtr<Box> const& child : lineBoxes()) {
        taker.room -= child->dimensions.content.width;
    }
}

void BlockFlow::closeLine() {
    if (!taker.pending.empty()) Walk::run(placePending({.isMeasured = true}, 0));
}

LayoutPass BlockFlow::passAfterBreak(bool isLimited) const {
    return {.again = true, .isLimited = isLimited, .room = available()};
}

Walk BlockFlow::placePending(LayoutPass pass, std::size_t kept) {
    if (taker.pending.empty()) return {};
    // Below the largest width only, since a sum that saturates there is never too wide.
    Placing placing = {pass, kept, available() < s_largestWidth};
    do {
        Walk layoutOfNext = layOutNext(placing);
        if (!layoutOfNext.hasReturned()) return placeRemaining(placing, std::move(layoutOfNext));
    } while (takeNext(placing));
    return {};
}

/// Goes on where the layout of the next box has calls of its own.
Walk BlockFlow::placeRemaining(Placing placing, Walk layoutOfNext) {
    co_await layoutOfNext;
    while (takeNext(placing)) co_await layOutNext(placing);
}

Walk BlockFlow::layOutNext(Placing& placing) {
    // What was broken off need not be laid out to be broken again.
    Box const& whole = *taker.pending.back();
    if (placing.pass.again && breaksByWidths(whole) && isTooWide(whole)) breakNext(placing);
    Box& next = *taker.pending.back();
    stack.place(next.dimensions);
    return next.layOut(block.dimensions, placing.pass);
}

/// Breaks the next box, of which the part that fits comes next then. False where it is not broken.
bool BlockFlow::breakNext(Placing& placing) {
    Box& next = *taker.pending.back();
    bool const byWidths = breaksByWidths(next);
    ZRLWPtr<Box> rest = byWidths ? splitMeasured(next, available()) : next.split(available());
    if (!rest) return false;
    if (taker.pending.size() == 1) ++taker.breaks;
    placing.pass = passAfterBreak(placing.staysTooWide && !byWidths);
    taker.pending.insert(taker.pending.end() - 1, std::move(rest));
    return true;
}

/// Gives the next box its place, or breaks it. Returns whether a box is to be laid out after that.
bool BlockFlow::takeNext(Placing& placing) {
    Box& next = *taker.pending.back();
    if (!placing.pass.isLimited) {
        placing.staysTooWide = placing.staysTooWide && !next.mayShrink && next.isSettled;
    }
    // The same box again, now with less content.
    if (isTooWide(next) && breakNext(placing)) return true;
    if (taker.pending.size() <= placing.kept) return false;
    stack.add(next.dimensions);
    block.isSettled = block.isSettled && next.isSettled;
    ZRLWPtr<Box> placed = std::move(taker.pending.back());
    taker.pending.pop_back();
    taker.take(std::move(placed));
    return !taker.pending.empty();
}

void BlockFlow::finish() {
    stack.finish();
    block.mayShrink = false;
    block.holdsBlock = true;
}

}  // namespace CLI::XML
