/// \file
/// How the inside of a closed shape is filled.
#ifndef VEKPrtFillAttributes_H
#define VEKPrtFillAttributes_H

#include "VEKMathPoint2D.h"
#include "VEKMathVector2D.h"
#include "VEKPrt2DModelExport.h"

class VEKPixelImage;

/// What an interior is filled with.  Any value is stored and handed back; new records have VEKPrtFillSolid.
enum VEKPrtFillStyle : int { VEKPrtFillSolid = 0, VEKPrtFillPattern = 1, VEKPrtFillNone = 2 };

/// What is inside where outlines cross.  Any value is stored and handed back; new records have
/// VEKPrtFillEvenOdd.
enum VEKPrtFillRule : int { VEKPrtFillNonZero = 0, VEKPrtFillEvenOdd = 1 };

/// Style, rule, colour, and an optional pattern: a pixel image, two vectors and a reference point.
///
/// Holds one reference on the pattern image.  Copies share the image, each with a reference of its own; only
/// Duplicate copies it.
class VEKPRT2DMODEL_API VEKPrtFillAttributes {
public:
    /// Colour 0, transparency 255, solid, even-odd, no pattern.
    VEKPrtFillAttributes();
    VEKPrtFillAttributes(const VEKPrtFillAttributes& iOther);
    virtual ~VEKPrtFillAttributes();
    VEKPrtFillAttributes& operator=(const VEKPrtFillAttributes& iOther);

    /// 1 if all fields are exactly equal, otherwise 0.  Images are equal if they are the same object.
    int operator==(const VEKPrtFillAttributes& iOther) const;

    /// Copies this record into \p oTarget, with a copy of the pattern image, or null where that fails.  If
    /// this record has no image, the target keeps the one it has.
    ///
    /// \warning If both records have an image, the target's is overwritten without being released and is
    /// never freed.  Pass a target without an image.
    virtual void Duplicate(VEKPrtFillAttributes& oTarget);

    virtual void SetFillStyle(const VEKPrtFillStyle& iStyle);
    virtual void GetFillStyle(VEKPrtFillStyle& oStyle) const;
    virtual void SetFillRule(const VEKPrtFillRule& iRule);
    virtual void GetFillRule(VEKPrtFillRule& oRule) const;
    /// An index from 0 into the colour table of the page.
    virtual void SetFillColourIndex(unsigned int iIndex);
    virtual void GetFillColourIndex(unsigned int& oIndex) const;

    /// From 0, fully transparent, to 255, opaque and the default.
    virtual void SetFillColourTransparency(unsigned char iTransparency);
    /// Not const, unlike its neighbours: the mangled name is part of the binary interface.
    virtual void GetFillColourTransparency(unsigned char& oTransparency);

    /// Releases the image held before and takes its own reference on \p iImage, which may be null; the image
    /// already held keeps its count.  The vectors, the sides of one tile of the pattern, are always stored.
    virtual void SetPattern(VEKPixelImage* iImage, const VEKMathVector2D& iFirst,
                            const VEKMathVector2D& iSecond);

    /// Lends the image: no reference is added.  Not const: the mangled name is part of the binary interface.
    virtual void GetPattern(VEKPixelImage*& oImage, VEKMathVector2D& oFirst, VEKMathVector2D& oSecond);
    /// A corner of one tile of the pattern.
    virtual void SetPatternRefPoint(const VEKMathPoint2D& iPoint);
    virtual void GetPatternRefPoint(VEKMathPoint2D& oPoint) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyColour(const VEKPrtFillAttributes& iOther);
    VEKPRT2DMODEL_LOCAL void CopyPlacement(const VEKPrtFillAttributes& iOther);

    VEKPrtFillStyle _style = VEKPrtFillSolid;
    VEKPrtFillRule _rule = VEKPrtFillEvenOdd;
    unsigned int _colourIndex = 0;
    unsigned char _colourTransparency = 255;
    VEKPixelImage* _image = nullptr;
    VEKMathVector2D _firstVector{0.0, 0.0};
    VEKMathVector2D _secondVector{0.0, 0.0};
    VEKMathPoint2D _refPoint{0.0, 0.0};
};

#endif
