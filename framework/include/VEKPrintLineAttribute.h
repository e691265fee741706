/// \file
/// How a line is drawn: type, style, cap and join share one enumeration.
#ifndef VEKPrintLineAttribute_H
#define VEKPrintLineAttribute_H

/// New stroke records have the solid type, the scaled style, butt caps and mitred joins.
enum VEKPrintLineAttribute : int {
    VEKPrintLineTypeSolid = 0,
    VEKPrintLineTypeDashed = 1,
    VEKPrintLineTypeDotted = 2,
    VEKPrintLineTypeDashDot = 3,
    VEKPrintLineTypeDashDotDot = 4,
    VEKPrintLineTypeLongDash = 5,
    VEKPrintLineTypeFineDash = 6,
    /// The dash pattern of the record.
    VEKPrintLineTypePattern = 7,

    /// Transforms scale the width.
    VEKPrintLineStyleScaled = 8,
    /// The width is the same under all transforms.
    VEKPrintLineStyleFixed = 9,

    VEKPrintLineCapButt = 10,
    VEKPrintLineCapRound = 11,
    VEKPrintLineCapSquare = 12,

    VEKPrintLineJoinMitre = 13,
    VEKPrintLineJoinRound = 14,
    VEKPrintLineJoinBevel = 15
};

#endif
