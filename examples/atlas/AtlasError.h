// What ends the program: one line for the user.
#ifndef ATLAS_ERROR_H
#define ATLAS_ERROR_H

#include <stdexcept>

class AtlasError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

#endif
