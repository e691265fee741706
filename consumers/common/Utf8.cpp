#include "Utf8.h"

namespace vekprt::drawing {

constexpr Range g_characters[] = {
    {'\t', '\n'}, {'\r', '\r'}, {' ', 0xD7FF}, {0xE000, 0xFFFD}, {0x10000, 0x10FFFF}};

char32_t NextCharacter(std::string_view& ioText) {
    // By the first four bits of the first byte, and by the length.
    constexpr std::size_t lengths[] = {1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0, 2, 2, 3, 4};
    constexpr char32_t firsts[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto byte = [&](std::size_t i) {
        return i < ioText.size() ? static_cast<unsigned char>(ioText[i]) : 0U;
    };
    const std::size_t length = lengths[byte(0) >> 4];
    char32_t character = byte(0) & (0xFFU >> length);
    bool isSound = length > 0;
    for (std::size_t i = 1; i < length; ++i) {
        isSound = isSound && (byte(i) & 0xC0U) == 0x80U;
        character = character << 6 | (byte(i) & 0x3FU);
    }
    isSound = isSound && character >= firsts[length] && IsIn(g_characters, character);
    ioText.remove_prefix(isSound ? length : 1);
    return isSound ? character : 0xFFFD;
}

std::string OneLine(std::string_view iText) {
    std::string line;
    while (!iText.empty()) {
        const std::string_view from = iText;
        const char32_t character = NextCharacter(iText);
        if (character == 0xFFFD)
            line += "\uFFFD";
        else if (character < ' ')
            line += ' ';
        else
            line += from.substr(0, from.size() - iText.size());
    }
    return line;
}

} // namespace vekprt::drawing
