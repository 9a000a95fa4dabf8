#include "xml/layout/Words.h"

#include "base/append.h"

namespace CLI::XML {

namespace {

/// Bytes from which on a text takes up no further box, so that it can be let go soon.
constexpr int s_longText = 4000;

/// The box at the end of `boxes`, where it shows the end of `text` and words can follow.
Box* openRun(Words::Boxes const& boxes, DomText const& text) {
    Box* const last = boxes.count > 0 ? boxes[boxes.count - 1].object : nullptr;
    if (last == nullptr || last->node != &text || text.text.view().back() != ' ') return nullptr;
    std::int32_t const end = last->runBegin + last->dimensions.content.width;
    return end == text.text.length() ? last : nullptr;
}

Box& addBox(Words::Boxes& boxes, DomNode& node) {
    boxes.add(ZR::MovePtr<Box>(new InlineBox(&node)));
    Box& box = *boxes.data[boxes.count - 1];
    box.holdNode();
    return box;
}

/// A box that nothing joins.
void addSingle(Words::Boxes& boxes, std::string_view word) {
    ZRLWPtr<DomNode> const node = makeText(word);
    sizeLeaf(addBox(boxes, *node));
}

/// Whether the next box keeps away from the last one. Of words only the first does, which is a box
/// of its own therefore.
bool endsInMargin(Words::Boxes const& boxes) {
    return boxes.count > 0 && boxes[boxes.count - 1]->dimensions.margin.right > 0;
}

}  // namespace

std::size_t Words::lengthOfWord(std::string_view words, std::size_t start) {
    std::size_t const space = words.find(' ', start);
    return (space == std::string_view::npos ? words.length() : space + 1) - start;
}

void Words::addWords(Boxes& boxes, std::string_view words) {
    if (endsInMargin(boxes)) {
        std::string_view const first = words.substr(0, lengthOfWord(words, 0));
        addSingle(boxes, first);
        words.remove_prefix(first.length());
    }
    if (!words.empty()) addRun(boxes, words);
}

void Words::addWord(Boxes& boxes, std::string_view word) {
    // No line is broken behind a space within a word.
    bool const isPlain = !word.empty() && lengthOfWord(word, 0) == word.length();
    if (isPlain) {
        addWords(boxes, word);
    } else {
        addSingle(boxes, word);
    }
}

void Words::addRun(Boxes& boxes, std::string_view words) {
    Box* run = text ? openRun(boxes, *text) : nullptr;
    if (run == nullptr) {
        if (!text || text->text.length() > s_longText) {
            text = ZR::MovePtr<DomText>(new DomText(String::s_empty));
            text->text.reserve(s_longText);
        }
        run = &addBox(boxes, *text);
        run->isRun = true;
        run->runBegin = text->text.length();
    }
    append(text->text, words);
    run->dimensions.content.width += static_cast<std::int32_t>(words.length());
    sizeLeaf(*run);
}

}  // namespace CLI::XML
