#include "Lettering.h"

#include "Utf8.h"
#include "VEKFont.h"
#include "VEKPrtTextElt.h"
#include "VEKPrtValues.h"

namespace vekprt::drawing {

namespace {

// Accents, marks around symbols, variants.
constexpr Range g_combining[] = {{0x300, 0x36F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}};

// The characters, each with the combining marks that follow it.
std::vector<std::string> LettersOf(std::string_view iText) {
    std::vector<std::string> letters;
    while (!iText.empty()) {
        const std::string_view from = iText;
        if (!IsIn(g_combining, NextCharacter(iText)) || letters.empty()) letters.emplace_back();
        letters.back() += from.substr(0, from.size() - iText.size());
    }
    return letters;
}

int WeightOf(VEKPrintTextAttribute iWeight) {
    switch (iWeight) {
    case textWeightLight: return 300;
    case textWeightMedium: return 500;
    case textWeightBold: return 700;
    case textWeightBlack: return 900;
    default: return 400;
    }
}

} // namespace

std::optional<Lettering> LetteringOf(const Reporter& iReporter, const VEKPrtTextElt& iText) {
    // Capitals are about as high as this share of the font size.
    constexpr double capitals = 0.72;
    VEKMathPoint2D position(0.0, 0.0);
    VEKUnicodeString text;
    VEKPrtTextAttributes record;
    iText.GetParameters(position, text);
    iText.GetTextAttributes(record);

    Lettering l;
    VEKFont* font = nullptr;
    double expansion = 1;
    float slant = 0, direction = 0;
    VEKPrintTextAttribute weight{}, anchor{};
    VEKPrtTextWritingMode mode = VEKPrtTextHorizontal;
    record.GetFont(font);
    record.GetWeight(weight);
    record.GetHeight(l.height);
    record.GetAnchor(anchor);
    record.GetSlant(slant);
    record.GetDirection(direction);
    record.GetExtraSpacing(l.spacing);
    record.GetExpansion(expansion);
    record.GetWritingMode(mode);
    if (!iReporter.AreInRange(
            iText, {position.GetX(), position.GetY(), l.height, l.spacing, expansion, slant, direction}))
        return {};
    if (l.height <= 0.0) {
        iReporter.Warn(iText, "text without height");
        return {};
    }

    if (font) l.family = font->GetFamily();
    l.weight = WeightOf(weight);
    l.isVertical = mode == VEKPrtTextVertical;
    const std::string line = OneLine(text.ToUtf8());
    l.lines = l.isVertical ? LettersOf(line) : std::vector<std::string>{line};
    l.lineFeed = l.height + l.spacing;

    // On the baseline, in the middle, at the top; of each the left, the centre, the right.
    const bool isKnown = anchor >= textAnchorBaselineLeft && anchor <= textAnchorTopRight;
    const int index = isKnown ? anchor - textAnchorBaselineLeft : 0;
    l.left = index % 3 * 0.5;
    const double column = l.lines.empty() ? 0.0 : static_cast<double>(l.lines.size() - 1) * l.lineFeed;
    const double top = capitals * l.height;
    if (index / 3 == 1) l.firstLine = top - (column + top) / 2.0;
    if (index / 3 == 2) l.firstLine = top;
    l.placement = {Translation(position.GetX(), position.GetY()), Rotation(direction), Scaling(expansion, -1),
                   SkewX(-slant)};
    return l;
}

} // namespace vekprt::drawing
