#include "Xml.h"

#include <algorithm>
#include <cstdio>

#include "Utf8.h"

namespace vekprt::svg {

using namespace drawing;

namespace {

constexpr Range g_nameStarts[] = {{'A', 'Z'},       {'_', '_'},       {'a', 'z'},        {0xC0, 0xD6},
                                  {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},    {0x37F, 0x1FFF},
                                  {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF},  {0x3001, 0xD7FF},
                                  {0xF900, 0xFDCF}, {0xFDF0, 0xFFFC}, {0x10000, 0xEFFFF}};
constexpr Range g_nameParts[] = {{'-', '.'}, {'0', '9'}, {0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

bool NeedsNoEscape(char iCharacter) {
    const bool printable = static_cast<unsigned char>(iCharacter) - 0x20U < 0x5FU;
    return printable && iCharacter != '&' && iCharacter != '<' && iCharacter != '>' && iCharacter != '"';
}

} // namespace

std::string XmlName(std::string_view iIdentifier) {
    std::string name;
    while (!iIdentifier.empty()) {
        const std::string_view from = iIdentifier;
        const char32_t character = NextCharacter(iIdentifier);
        if (IsIn(g_nameStarts, character) || (!name.empty() && IsIn(g_nameParts, character))) {
            name += from.substr(0, from.size() - iIdentifier.size());
        } else {
            char code[16];
            std::snprintf(code, sizeof code, "_x%X_", static_cast<unsigned>(character));
            name += code;
        }
    }
    return name;
}

void XmlWriter::Start(std::string_view iName,
                      std::initializer_list<std::pair<std::string_view, std::string_view>> iAttributes) {
    CloseTag();
    NewLine();
    _text.append("<").append(iName);
    _open.push_back({iName, false});
    _inTag = true;
    for (const auto& [name, value] : iAttributes)
        Attribute(name, value);
}

void XmlWriter::Attribute(std::string_view iName, std::string_view iValue) {
    _text.append(" ").append(iName).append("=\"");
    AppendEscaped(iValue);
    _text += '"';
}

void XmlWriter::OptionalAttribute(std::string_view iName, std::string_view iValue) {
    if (!iValue.empty()) Attribute(iName, iValue);
}

void XmlWriter::Text(std::string_view iText) {
    CloseTag();
    _open.back().hasText = true;
    AppendEscaped(iText);
}

void XmlWriter::End(int iElements) {
    for (; iElements > 0; --iElements) {
        const Open open = _open.back();
        _open.pop_back();
        if (_inTag) {
            _text += "/>";
        } else {
            if (!open.hasText) NewLine();
            _text.append("</").append(open.name).append(">");
        }
        _inTag = false;
    }
    if (_open.empty()) _text += '\n';
}

void XmlWriter::Leaf(std::string_view iName, std::string_view iText) {
    Start(iName);
    Text(iText);
    End();
}

bool XmlWriter::FlushIfLarge() {
    constexpr std::size_t flushThreshold = 1 << 16;
    if (_text.size() >= flushThreshold) {
        _stream.write(_text.data(), static_cast<std::streamsize>(_text.size()));
        _text.clear();
    }
    return _stream.good();
}

bool XmlWriter::Finish() {
    _stream.write(_text.data(), static_cast<std::streamsize>(_text.size()));
    _stream.flush();
    return _stream.good();
}

void XmlWriter::CloseTag() {
    if (_inTag) _text += '>';
    _inTag = false;
}

// No white space is added next to text: it would become part of it.
void XmlWriter::NewLine() {
    constexpr std::size_t maxIndent = 20;
    if (!_open.empty() && _open.back().hasText) return;
    _text += '\n';
    _text.append(std::min(_open.size(), maxIndent), ' ');
}

// What is not a character of XML becomes the replacement character.
void XmlWriter::AppendEscaped(std::string_view iText) {
    while (!iText.empty()) {
        const auto* const plainEnd = std::find_if_not(iText.begin(), iText.end(), NeedsNoEscape);
        const auto plain = static_cast<std::size_t>(plainEnd - iText.begin());
        _text += iText.substr(0, plain);
        iText.remove_prefix(plain);
        if (iText.empty()) return;
        const std::string_view from = iText;
        switch (NextCharacter(iText)) {
        case '&': _text += "&amp;"; break;
        case '<': _text += "&lt;"; break;
        case '>': _text += "&gt;"; break;
        case '"': _text += "&quot;"; break;
        case '\n': _text += "&#10;"; break;
        case '\r': _text += "&#13;"; break;
        case '\t': _text += "&#9;"; break;
        case 0xFFFD: _text += "\xEF\xBF\xBD"; break;
        default: _text += from.substr(0, from.size() - iText.size());
        }
    }
}

} // namespace vekprt::svg
