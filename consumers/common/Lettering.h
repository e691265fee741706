// Texts: where their lines stand, and what they are set in.
#ifndef Lettering_H
#define Lettering_H

#include <optional>
#include <string>
#include <vector>

#include "Affine.h"
#include "Reporter.h"

class VEKPrtTextElt;

namespace vekprt::drawing {

struct Lettering {
    /// A list of families, separated by commas.
    std::string family = "sans-serif";
    /// From 300, light, to 900, black; 400 is regular.
    int weight = 400;
    double height = 0, spacing = 0;
    /// Which share of a line lies left of the anchor: 0, 0.5 or 1.
    double left = 0;
    bool isVertical = false;
    /// Of horizontal text a single one, of vertical text one for each letter.
    std::vector<std::string> lines = {};
    // In the coordinates of the letters, where y points down.
    /// From the anchor to the baseline of the first line.
    double firstLine = 0;
    /// From one baseline to the next.
    double lineFeed = 0;
    /// From those coordinates to the ones of the element.
    std::vector<Elementary> placement = {};
};

/// Nothing, with a warning, for a text that cannot be drawn.
std::optional<Lettering> LetteringOf(const Reporter& iReporter, const VEKPrtTextElt& iText);

} // namespace vekprt::drawing

#endif
