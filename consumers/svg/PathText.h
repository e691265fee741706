// Outlines as path data.
#ifndef PathText_H
#define PathText_H

#include <string>

#include "Number.h"
#include "Path.h"

namespace vekprt::svg {

/// For the `d` attribute.
std::string PathText(const drawing::Path& iPath, const Grid& iGrid);

} // namespace vekprt::svg

#endif
