#include "Number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace vekprt::svg {

namespace {

template <class Value, class... Format>
char* WriteText(char* oText, Value iValue, Format... iFormat) {
    if (!std::isfinite(iValue) || iValue == 0) iValue = 0;
    return std::to_chars(oText, oText + Grid::maxText, iValue, iFormat...).ptr;
}
template <class Value, class... Format>
std::string Text(Value iValue, Format... iFormat) {
    char text[Grid::maxText];
    return {text, WriteText(text, iValue, iFormat...)};
}

} // namespace

std::string Number(double iValue) { return Text(iValue, std::chars_format::general, 12); }
std::string Number(float iValue) { return Text(iValue); }

Grid::Grid(double iStep) {
    constexpr int maxDigits = 15;
    const double digits = std::ceil(-std::log10(iStep) - 1e-9);
    if (!(std::fabs(digits) <= maxDigits)) return;
    _digits = static_cast<int>(digits);
    _unitsInOne = std::pow(10.0, std::max(_digits, 0));
}

char* Grid::WriteUnits(char* oText, std::int64_t iUnits) const {
    std::int64_t rest = std::abs(iUnits);
    int digits = std::max(_digits, 0);
    for (; digits > 0 && rest % 10 == 0; --digits)
        rest /= 10;
    if (iUnits < 0) *oText++ = '-';
    char text[24];
    const char* const end = std::to_chars(text, text + sizeof text, rest).ptr;
    const char* const point = std::max<const char*>(text, end - digits);
    if (point == text) *oText++ = '0';
    oText = std::copy<const char*>(text, point, oText);
    if (digits == 0) return oText;
    *oText++ = '.';
    oText = std::fill_n(oText, digits - (end - point), '0');
    return std::copy(point, end, oText);
}

char* Grid::Write(char* oText, double iValue) const {
    return Holds(std::fabs(iValue)) ? WriteUnits(oText, Units(iValue)) : WriteText(oText, iValue);
}

std::string Grid::operator()(double iValue) const {
    char text[maxText];
    return {text, Write(text, iValue)};
}

} // namespace vekprt::svg
