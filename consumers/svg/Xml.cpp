#include "Xml.h"

#include <charconv>
#include <cmath>

namespace {

// The length of the well-formed UTF-8 sequence of a character that XML allows at the start of iText, or 0.
std::size_t CharacterLength(std::string_view iText) {
    const auto byte = [&](std::size_t i) {
        return i < iText.size() ? static_cast<unsigned char>(iText[i]) : 0U;
    };
    const auto tail = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    const unsigned first = byte(0);
    if (first < 0x80) return first >= 0x20 || first == '\t' || first == '\n' || first == '\r' ? 1 : 0;
    if (first >= 0xC2 && first < 0xE0) return tail(1) ? 2 : 0;
    if (first >= 0xE0 && first < 0xF0) {
        const unsigned code = (first & 0x0FU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU);
        const bool allowed = code >= 0x800 && (code < 0xD800 || code > 0xDFFF) && code < 0xFFFE;
        return tail(1) && tail(2) && allowed ? 3 : 0;
    }
    if (first >= 0xF0 && first < 0xF5) {
        const unsigned code = (first & 0x07U) << 18 | (byte(1) & 0x3FU) << 12;
        return tail(1) && tail(2) && tail(3) && code >= 0x10000 && code < 0x110000 ? 4 : 0;
    }
    return 0;
}

} // namespace

std::string Number(double iValue) {
    if (!std::isfinite(iValue) || iValue == 0.0) return "0";
    char text[32];
    const auto result = std::to_chars(text, text + sizeof text, iValue);
    return {text, result.ptr};
}

std::string Pair(double iX, double iY) { return Number(iX) + "," + Number(iY); }

void XmlWriter::Start(std::string_view iName) {
    CloseTag();
    NewLine();
    _stream << '<' << iName;
    _open.push_back({std::string(iName), false});
    _inTag = true;
}

void XmlWriter::Attribute(std::string_view iName, std::string_view iValue) {
    _stream << ' ' << iName << "=\"";
    Escaped(iValue);
    _stream << '"';
}

void XmlWriter::OptionalAttribute(std::string_view iName, std::string_view iValue) {
    if (!iValue.empty()) Attribute(iName, iValue);
}

void XmlWriter::Text(std::string_view iText) {
    CloseTag();
    _open.back().hasText = true;
    Escaped(iText);
}

void XmlWriter::End() {
    const Open open = _open.back();
    _open.pop_back();
    if (_inTag) {
        _stream << "/>";
        _inTag = false;
    } else {
        if (!open.hasText) NewLine();
        _stream << "</" << open.name << '>';
    }
    if (_open.empty()) _stream << '\n';
}

void XmlWriter::Leaf(std::string_view iName, std::string_view iText) {
    Start(iName);
    Text(iText);
    End();
}

void XmlWriter::CloseTag() {
    if (_inTag) _stream << '>';
    _inTag = false;
}

// No white space is added where text stands: it would become part of it.
void XmlWriter::NewLine() {
    if (!_open.empty() && _open.back().hasText) return;
    _stream << '\n' << std::string(_open.size(), ' ');
}

// What is not a character of XML becomes the replacement character.
void XmlWriter::Escaped(std::string_view iText) {
    while (!iText.empty()) {
        const std::size_t length = CharacterLength(iText);
        switch (iText.front()) {
        case '&': _stream << "&amp;"; break;
        case '<': _stream << "&lt;"; break;
        case '>': _stream << "&gt;"; break;
        case '"': _stream << "&quot;"; break;
        case '\n': _stream << "&#10;"; break;
        case '\r': _stream << "&#13;"; break;
        case '\t': _stream << "&#9;"; break;
        default: _stream << (length ? iText.substr(0, length) : std::string_view("\xEF\xBF\xBD"));
        }
        iText.remove_prefix(length ? length : 1);
    }
}
