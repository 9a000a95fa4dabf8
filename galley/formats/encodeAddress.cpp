#include "galley/formats/encodeAddress.h"

namespace galley {

std::string encodeAddress(std::string_view address) {
    constexpr char const* s_digits = "0123456789ABCDEF";
    constexpr std::string_view s_unsafe = "\"<>";
    std::string encoded;
    for (char const c : address) {
        auto const byte = static_cast<unsigned char>(c);
        if (byte > ' ' && byte < 0x7F && s_unsafe.find(c) == std::string_view::npos) {
            encoded += c;
        } else {
            encoded += {'%', s_digits[byte >> 4], s_digits[byte & 0xF]};
        }
    }
    return encoded;
}

}  // namespace galley
