#include "web/text/utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "web/text/bytes.h"

namespace galley::web {

namespace {

/// What the first byte of a character says of it.
struct Lead {
    /// Bytes; 0 where no character begins so.
    unsigned char length = 0;
    /// What the second byte may be: this keeps out overlong forms, surrogates, and what is above
    /// U+10FFFF.
    unsigned char least = 0x80;
    unsigned char most = 0xBF;
};

constexpr Lead leadOf(unsigned char byte) {
    if (byte < 0x80) return {1};
    if (byte < 0xC2) return {0};
    if (byte < 0xE0) return {2};
    if (byte == 0xE0) return {3, 0xA0};
    if (byte == 0xED) return {3, 0x80, 0x9F};
    if (byte < 0xF0) return {3};
    if (byte == 0xF0) return {4, 0x90};
    if (byte < 0xF4) return {4};
    if (byte == 0xF4) return {4, 0x80, 0x8F};
    return {0};
}

constexpr auto s_leads = [] {
    std::array<Lead, 256> leads = {};
    for (unsigned byte = 0; byte < 256; ++byte)
        leads[byte] = leadOf(static_cast<unsigned char>(byte));
    return leads;
}();

unsigned char byteAt(std::string_view text, std::size_t i) {
    return static_cast<unsigned char>(text[i]);
}

}  // namespace

CodePoint decodeAnyAt(std::string_view text, std::size_t at) {
    unsigned char const first = byteAt(text, at);
    Lead lead = s_leads[first];
    if (lead.length == 1) return {first, 1, true};
    if (lead.length == 0) return {};
    // The first byte has as many leading ones as there are bytes, and then a zero.
    char32_t value = first & (0x7FU >> lead.length);
    for (unsigned i = 1; i < lead.length; ++i) {
        unsigned char const byte = at + i < text.size() ? byteAt(text, at + i) : 0;
        if (byte < lead.least || byte > lead.most) return {s_replacementCharacter, i, false};
        value = value << 6 | (byte & 0x3FU);
        lead.least = 0x80;
        lead.most = 0xBF;
    }
    return {value, lead.length, true};
}

std::size_t startBefore(std::string_view text, std::size_t at) {
    if (isAscii(text[at - 1])) return at - 1;
    for (std::size_t length = 2; length <= std::min<std::size_t>(4, at); ++length) {
        CodePoint const found = decodeAt(text, at - length);
        if (found.isWellFormed && found.length == length) return at - length;
    }
    return at - 1;
}

std::size_t skipAscii(std::string_view text, std::size_t from) {
    constexpr unsigned char s_highest = 0x7F;
    for (; text.size() - from >= sizeof(Bytes); from += sizeof(Bytes)) {
        Mask const areOthers = bytesAt(text.data() + from) > s_highest;
        if (isAny(areOthers)) return from + firstOf(areOthers);
    }
    if (text.size() >= sizeof(Bytes)) {
        Bytes const last = bytesAt(text.data() + text.size() - sizeof(Bytes));
        if (!isAny(last > s_highest)) return text.size();
    }
    while (from < text.size() && isAscii(text[from])) ++from;
    return from;
}

std::size_t findIllFormed(std::string_view text, std::size_t from) {
    for (from = skipAscii(text, from); from < text.size();) {
        while (isPairAt(text, from)) from += 2;
        while (isCommonAt(text, from)) from += 3;
        if (from == text.size()) break;
        CodePoint const found = decodeAnyAt(text, from);
        if (!found.isWellFormed) return from;
        from += found.length;
        if (found.length == 1) from = skipAscii(text, from);
    }
    return std::string_view::npos;
}

}  // namespace galley::web
