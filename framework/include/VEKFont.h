/// \file
/// A font, by the name of its family.
#ifndef VEKFont_H
#define VEKFont_H

#include "VEKUnicodeString.h"

/// Holds the name only; consumers find a font of that family.
class VEKFont {
public:
    VEKFont(const char* iFamily) : _family(iFamily) {}

    /// Never null; valid until the font is assigned to or destroyed.
    const char* GetFamily() const { return _family.ToUtf8(); }

private:
    VEKUnicodeString _family;
};

#endif
