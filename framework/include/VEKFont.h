// A font, by the name of its family.
#ifndef VEKFont_H
#define VEKFont_H

#include "VEKUnicodeString.h"

/// Named only: what the family looks like is the consumer's.
class VEKFont {
public:
    VEKFont(const char* iFamily) : _family(iFamily) {}

    /// Valid until the font changes or goes.
    const char* GetFamily() const { return _family.ToUtf8(); }

private:
    VEKUnicodeString _family;
};

#endif
