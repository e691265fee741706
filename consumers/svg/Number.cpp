#include "Number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace vekprt::svg {

namespace {

template <class Value, class... Format>
std::string Text(Value iValue, Format... iFormat) {
    if (!std::isfinite(iValue) || iValue == 0) return "0";
    char text[32];
    return {text, std::to_chars(text, text + sizeof text, iValue, iFormat...).ptr};
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

double Grid::Step() const { return std::isfinite(_unitsInOne) ? std::pow(10.0, -_digits) : 0.0; }

void Grid::AppendUnits(std::string& ioText, std::int64_t iUnits) const {
    std::int64_t rest = std::abs(iUnits);
    int digits = std::max(_digits, 0);
    for (; digits > 0 && rest % 10 == 0; --digits)
        rest /= 10;
    char text[24];
    const char* const end = std::to_chars(text, text + sizeof text, rest).ptr;
    const char* const point = std::max<const char*>(text, end - digits);
    if (iUnits < 0) ioText += '-';
    if (point == text) ioText += '0';
    ioText.append(text, static_cast<std::size_t>(point - text));
    if (digits == 0) return;
    ioText += '.';
    ioText.append(static_cast<std::size_t>(digits - (end - point)), '0');
    ioText.append(point, end);
}

std::string Grid::operator()(double iValue) const {
    if (!Holds(std::fabs(iValue))) return Text(iValue);
    std::string text;
    AppendUnits(text, Units(iValue));
    return text;
}

} // namespace vekprt::svg
