/// \file
/// How a string of text is set.
#ifndef VEKPrtTextAttributes_H
#define VEKPrtTextAttributes_H

#include "VEKPrintTextAttribute.h"
#include "VEKPrt2DModelExport.h"

class VEKFont;

/// Direction in which letters follow each other.  Any value is stored and handed back; new records have
/// VEKPrtTextHorizontal.
enum VEKPrtTextWritingMode : int { VEKPrtTextHorizontal = 0, VEKPrtTextVertical = 1 };

/// Font, weight, height, anchor, slant, direction, spacing, expansion and writing mode.
///
/// Every value is stored and handed back; docs/drawing.md says how this project's consumers read it.  Lengths
/// are in units of the page, angles in degrees.
class VEKPRT2DMODEL_API VEKPrtTextAttributes {
public:
    /// No font, regular weight, height 10, anchored at the left end of the baseline, horizontal, with
    /// expansion 1 and no slant, rotation or extra spacing.
    VEKPrtTextAttributes();
    VEKPrtTextAttributes(const VEKPrtTextAttributes& iOther);
    virtual ~VEKPrtTextAttributes();
    VEKPrtTextAttributes& operator=(const VEKPrtTextAttributes& iOther);

    /// 1 if all fields are exactly equal, otherwise 0.  Fonts are equal if they are the same object.
    int operator==(const VEKPrtTextAttributes& iOther) const;

    /// Borrows the font, which may be null: the record and its copies share the pointer and never delete it.
    /// The caller keeps the font alive as long as any record points at it.
    virtual void SetFont(VEKFont* iFont);
    virtual void GetFont(VEKFont*& oFont) const;
    virtual void SetWeight(VEKPrintTextAttribute iWeight);
    virtual void GetWeight(VEKPrintTextAttribute& oWeight) const;
    /// The size of the font.
    virtual void SetHeight(double iHeight);
    virtual void GetHeight(double& oHeight) const;
    /// Which point of the text is placed at its position.
    virtual void SetAnchor(VEKPrintTextAttribute iAnchor);
    virtual void GetAnchor(VEKPrintTextAttribute& oAnchor) const;
    /// The angle by which each letter leans; 0 is upright.
    virtual void SetSlant(float iSlant);
    virtual void GetSlant(float& oSlant) const;
    /// The angle of the baseline; 0 runs along the x axis.
    virtual void SetDirection(float iDirection);
    virtual void GetDirection(float& oDirection) const;
    /// A length added between letters.
    virtual void SetExtraSpacing(double iSpacing);
    virtual void GetExtraSpacing(double& oSpacing) const;
    /// The factor by which the text is widened.
    virtual void SetExpansion(double iExpansion);
    virtual void GetExpansion(double& oExpansion) const;
    virtual void SetWritingMode(VEKPrtTextWritingMode iMode);
    virtual void GetWritingMode(VEKPrtTextWritingMode& oMode) const;

private:
    VEKFont* _font = nullptr;
    VEKPrintTextAttribute _weight;
    double _height = 10.0;
    VEKPrintTextAttribute _anchor;
    float _slant = 0.0F;
    float _direction = 0.0F;
    double _extraSpacing = 0.0;
    double _expansion = 1.0;
    VEKPrtTextWritingMode _writingMode = VEKPrtTextHorizontal;
};

#endif
