/// \file
/// How an outline is drawn.
#ifndef VEKPrtStrokeAttributes_H
#define VEKPrtStrokeAttributes_H

#include "VEKPrintLineAttribute.h"
#include "VEKPrt2DModelExport.h"

/// Colour, line type with an optional dash pattern, width, style, cap and join.
///
/// Every value is stored and handed back; docs/drawing.md says how this project's consumers read it.  Each
/// copy owns its dash pattern.
class VEKPRT2DMODEL_API VEKPrtStrokeAttributes {
public:
    /// Colour 0, transparency 255, a width of 0.1 (the float), solid and scaled, butt caps, mitred joins.
    VEKPrtStrokeAttributes();
    VEKPrtStrokeAttributes(const VEKPrtStrokeAttributes& iOther);
    virtual ~VEKPrtStrokeAttributes();

    /// If neither record holds a pattern, the length is also left unchanged (visible only after a failed
    /// allocation).
    VEKPrtStrokeAttributes& operator=(const VEKPrtStrokeAttributes& iOther);

    /// 1 if all fields and dash entries are exactly equal, otherwise 0.
    int operator==(const VEKPrtStrokeAttributes& iOther) const;

    /// An index from 0 into the colour table of the page.
    virtual void SetStrokeColourIndex(unsigned int iIndex);
    virtual void GetStrokeColourIndex(unsigned int& oIndex) const;

    /// From 0, fully transparent, to 255, opaque and the default.
    virtual void SetStrokeColourTransparency(unsigned char iTransparency);
    /// Not const, unlike its neighbours: the mangled name is part of the binary interface.
    virtual void GetStrokeColourTransparency(unsigned char& oTransparency);
    /// Solid, dashed and so on.  This project's consumers ignore it where the record has a dash pattern.
    virtual void SetStrokeType(VEKPrintLineAttribute iType);
    virtual void GetStrokeType(VEKPrintLineAttribute& oType) const;

    /// Replaces the dash pattern by a copy of \p iCount values, the lengths of dashes and gaps in turn.
    ///
    /// A count of 0 drops the pattern.  Null \p iValues with a count give a pattern of zeros, but do nothing
    /// while no pattern is held.  When allocation fails, the new count is stored and no pattern is held: the
    /// record compares and is read as if the pattern were zeros, and only values that are not null replace
    /// it.
    virtual void SetStrokeTypePattern(const float* iValues, unsigned char iCount);

    /// Hands out a new copy of \p oCount values, the caller's to `delete[]`; null when its allocation fails.
    ///
    /// If \p oCount is 0, \p oValues is not written: preset it.  A pattern lost to a failed allocation is
    /// handed out as zeros.
    virtual void GetStrokeTypePattern(float*& oValues, unsigned char& oCount) const;

    /// In units of the page.
    virtual void SetStrokeWidth(double iWidth);
    virtual void GetStrokeWidth(double& oWidth) const;
    /// Whether transforms scale the width.
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
