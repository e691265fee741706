// How an outline is drawn.
#ifndef VEKPrtStrokeAttributes_H
#define VEKPrtStrokeAttributes_H

#include "VEKPrintLineAttribute.h"
#include "VEKPrt2DModelExport.h"

/// Colour, line type with an optional dash pattern, width, style, cap and join.
///
/// Colours are indices into the page's colour table.  Copies own their dash pattern.
class VEKPRT2DMODEL_API VEKPrtStrokeAttributes {
public:
    /// Colour 0, transparency 255, a width of 0.1 (the float), solid and scaled, butt caps, mitred joins.
    VEKPrtStrokeAttributes();
    VEKPrtStrokeAttributes(const VEKPrtStrokeAttributes& iOther);
    virtual ~VEKPrtStrokeAttributes();

    /// Where neither record holds a pattern the count is left as it is, too, which shows only after a failed
    /// allocation.
    VEKPrtStrokeAttributes& operator=(const VEKPrtStrokeAttributes& iOther);

    /// 1 when all fields and dash entries are exactly equal, else 0.
    int operator==(const VEKPrtStrokeAttributes& iOther) const;

    virtual void SetStrokeColourIndex(unsigned int iIndex);
    virtual void GetStrokeColourIndex(unsigned int& oIndex) const;

    /// From 0 to 255, the default, which this project's consumer reads as opaque.
    virtual void SetStrokeColourTransparency(unsigned char iTransparency);
    /// Not const, unlike its neighbours: the mangled name is part of the binary interface.
    virtual void GetStrokeColourTransparency(unsigned char& oTransparency);
    virtual void SetStrokeType(VEKPrintLineAttribute iType);
    virtual void GetStrokeType(VEKPrintLineAttribute& oType) const;

    /// Replaces the dash pattern by a copy of \p iCount values.
    ///
    /// Count 0 drops the pattern.  Null values with a count give a pattern of zeros, but null does
    /// nothing at all while no pattern is held.  When allocation fails the new count is stored and no pattern
    /// is held: it compares as zeros, and only values that are not null can replace it.
    virtual void SetStrokeTypePattern(const float* iValues, unsigned char iCount);

    /// Hands out a fresh copy, the caller's to `delete[]`; null when allocation fails.
    ///
    /// With no pattern, \p oCount is 0 and \p oValues is not written: preset it.
    virtual void GetStrokeTypePattern(float*& oValues, unsigned char& oCount) const;

    virtual void SetStrokeWidth(double iWidth);
    virtual void GetStrokeWidth(double& oWidth) const;
    virtual void SetStrokeStyle(VEKPrintLineAttribute iStyle);
    virtual void GetStrokeStyle(VEKPrintLineAttribute& oStyle) const;
    virtual void SetStrokeCap(VEKPrintLineAttribute iCap);
    virtual void GetStrokeCap(VEKPrintLineAttribute& oCap) const;
    virtual void SetStrokeJoin(VEKPrintLineAttribute iJoin);
    virtual void GetStrokeJoin(VEKPrintLineAttribute& oJoin) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyPlainFields(const VEKPrtStrokeAttributes& iOther);
    VEKPRT2DMODEL_LOCAL void ReplacePattern(const float* iValues, unsigned char iCount);
    VEKPRT2DMODEL_LOCAL float PatternEntry(int iIndex) const;

    unsigned int _colourIndex = 0;
    unsigned char _colourTransparency = 255;
    VEKPrintLineAttribute _type;
    float* _pattern = nullptr;
    unsigned char _patternLength = 0;
    // The float 0.1 widened, not the double 0.1: clients compare for equality.
    double _width = static_cast<double>(0.1F);
    VEKPrintLineAttribute _style;
    VEKPrintLineAttribute _cap;
    VEKPrintLineAttribute _join;
};

#endif
