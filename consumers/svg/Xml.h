// Writes XML: nesting, escaping, numbers.
#ifndef Xml_H
#define Xml_H

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

/// The shortest decimal that reads back as the same double; "0" for what is not finite.
std::string Number(double iValue);
std::string Pair(double iX, double iY);

class XmlWriter {
public:
    explicit XmlWriter(std::ostream& ioStream) : _stream(ioStream) {}

    void Start(std::string_view iName);
    // Of the element started last, before anything is nested in it.
    void Attribute(std::string_view iName, std::string_view iValue);
    void Attribute(std::string_view iName, double iValue) { Attribute(iName, Number(iValue)); }
    /// Nothing for an empty value.
    void OptionalAttribute(std::string_view iName, std::string_view iValue);
    void Text(std::string_view iText);
    void End();
    /// An element that holds nothing but text.
    void Leaf(std::string_view iName, std::string_view iText);

private:
    void CloseTag();
    void NewLine();
    void Escaped(std::string_view iText);

    struct Open {
        std::string name;
        bool hasText;
    };
    std::ostream& _stream;
    std::vector<Open> _open;
    bool _inTag = false;
};

#endif
