// How a string of text is set.
#ifndef VEKPrtTextAttributes_H
#define VEKPrtTextAttributes_H

#include "VEKPrintTextAttribute.h"
#include "VEKPrt2DModelExport.h"

class VEKFont;

/// Where the next letter stands.  Stored and handed back, whatever the value; new records have
/// VEKPrtTextHorizontal.
enum VEKPrtTextWritingMode : int { VEKPrtTextHorizontal = 0, VEKPrtTextVertical = 1 };

/// Font, weight, height, anchor, slant, direction, spacing, expansion and writing mode.
///
/// The font is borrowed: the record and its copies share the bare pointer, count no reference and
/// never delete it.  The caller keeps the font alive as long as any record points at it.
class VEKPRT2DMODEL_API VEKPrtTextAttributes {
public:
    /// No font, height 10, expansion 1, neither slanted nor turned nor spaced.
    VEKPrtTextAttributes();
    VEKPrtTextAttributes(const VEKPrtTextAttributes& iOther);
    virtual ~VEKPrtTextAttributes();
    VEKPrtTextAttributes& operator=(const VEKPrtTextAttributes& iOther);

    /// 1 when all fields are exactly equal, else 0.  Fonts are equal when they are the same object.
    int operator==(const VEKPrtTextAttributes& iOther) const;

    virtual void SetFont(VEKFont* iFont);
    virtual void GetFont(VEKFont*& oFont) const;
    virtual void SetWeight(VEKPrintTextAttribute iWeight);
    virtual void GetWeight(VEKPrintTextAttribute& oWeight) const;
    virtual void SetHeight(double iHeight);
    virtual void GetHeight(double& oHeight) const;
    virtual void SetAnchor(VEKPrintTextAttribute iAnchor);
    virtual void GetAnchor(VEKPrintTextAttribute& oAnchor) const;
    virtual void SetSlant(float iSlant);
    virtual void GetSlant(float& oSlant) const;
    virtual void SetDirection(float iDirection);
    virtual void GetDirection(float& oDirection) const;
    virtual void SetExtraSpacing(double iSpacing);
    virtual void GetExtraSpacing(double& oSpacing) const;
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
