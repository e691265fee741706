// Writes XML: nesting, escaping, names.
#ifndef Xml_H
#define Xml_H

#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vekprt::svg {

/// A valid name (without colons) for an identifier.  Characters that a name cannot have there give way to
/// their code: "2 b" becomes "_x32__x20_b".  A valid one stays as it is.
std::string XmlName(std::string_view iIdentifier);

/// Buffers the document, and writes it to the stream in large pieces.
class XmlWriter {
public:
    explicit XmlWriter(std::ostream& ioStream) : _stream(ioStream) {}

    /// \p iName must last until the element's end.
    void Start(std::string_view iName,
               std::initializer_list<std::pair<std::string_view, std::string_view>> iAttributes = {});
    // Of the element started last, before anything is nested in it.
    void Attribute(std::string_view iName, std::string_view iValue);
    /// One or more attributes as text that needs no escapes, a blank before each.
    void PlainAttributes(std::string_view iText) { _text += iText; }
    /// Nothing for an empty value.
    void OptionalAttribute(std::string_view iName, std::string_view iValue);
    void Text(std::string_view iText);
    /// Of the innermost element, or of as many.
    void End(int iElements = 1);
    /// An element that holds nothing but text.
    void Leaf(std::string_view iName, std::string_view iText);

    /// Flushes the buffer to the stream once it is large.  False when the stream has failed.
    bool FlushIfLarge();
    /// Flushes the rest, and the stream.  False when the stream has failed.
    bool Finish();

private:
    void CloseTag();
    void NewLine();
    void AppendEscaped(std::string_view iText);

    struct Open {
        std::string_view name;
        bool hasText;
    };
    std::ostream& _stream;
    std::string _text = R"(<?xml version="1.0" encoding="UTF-8"?>)";
    std::vector<Open> _open;
    bool _inTag = false;
};

} // namespace vekprt::svg

#endif
