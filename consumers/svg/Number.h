// Formats numbers as short as the output allows.
#ifndef Number_H
#define Number_H

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

namespace vekprt::svg {

/// 12 significant digits at most; "0" for what is not finite.
std::string Number(double iValue);
/// The shortest decimal that reads back as the same float.
std::string Number(float iValue);

/// The decimal grid that coordinates and lengths are rounded to.
class Grid {
public:
    /// No rounding.
    Grid() = default;
    /// Multiples of the power of ten at \p iStep or next below it; no rounding for what is no step.
    explicit Grid(double iStep);

    bool IsAsFineAs(const Grid& iOther) const { return _digits >= iOther._digits; }

    /// Whether Units has room for values of this magnitude.
    bool Holds(double iMagnitude) const { return iMagnitude * _unitsInOne < 4e15; }
    std::int64_t Units(double iValue) const {
        return static_cast<std::int64_t>(iValue * _unitsInOne + (iValue < 0.0 ? -0.5 : 0.5));
    }
    /// Writes a number of units, and returns its end; maxText characters are enough.
    char* WriteUnits(char* oText, std::int64_t iUnits) const;
    static constexpr std::size_t maxText = 40;
    /// A value that the grid has no room for is written so that it reads back as the same double.
    std::string operator()(double iValue) const;
    char* Write(char* oText, double iValue) const;

private:
    // After the point; below 0 for a step above 1, which is written like 1.
    int _digits = std::numeric_limits<int>::max();
    double _unitsInOne = std::numeric_limits<double>::infinity();
};

} // namespace vekprt::svg

#endif
