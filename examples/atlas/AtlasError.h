// What ends the program: one line for the user.
#ifndef AtlasError_H
#define AtlasError_H

#include <stdexcept>

class AtlasError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

#endif
