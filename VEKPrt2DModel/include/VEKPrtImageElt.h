// A page or canvas.
#ifndef VEKPrtImageElt_H
#define VEKPrtImageElt_H

#include "VEKMath2x2Matrix.h"
#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"

class VEKListPtrVEKPrtGraphicPrimitiveElt;
class VEKPrtColourTable;

/// The units of an image's measures.  Stored and handed back, whatever the value.
enum VEKPrtImageUnits : int {
    VEKPrtImagePixel = 0,
    VEKPrtImagePoint = 1,
    VEKPrtImagePica = 2,
    VEKPrtImageInch = 3,
    VEKPrtImageMillimetre = 4,
    VEKPrtImageCentimetre = 5,
    VEKPrtImageMetre = 6
};

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__14VEKPrtImageElt;

/// Placement, units, matrix, colour table and an ordered list of children.
///
/// Owns its colour table outright; holds one reference on each child.
class VEKPRT2DMODEL_API VEKPrtImageElt : public VEKPrtGraphicPrimitiveElt {
public:
    /// Measured in millimetres, with the identity as its matrix.
    VEKPrtImageElt();
    VEKPrtImageElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight,
                   const VEKPrtImageUnits& iUnits, const VEKMath2x2Matrix& iMatrix);

    /// Shares the children, each of which gains a reference, and copies the colour table.
    VEKPrtImageElt(const VEKPrtImageElt& iOther);
    ~VEKPrtImageElt() override;

    /// Releases the old children but for the last one, and shares those of \p iOther.
    ///
    /// The colour table is replaced by a copy, or by none.  The last of the old children keeps the reference
    /// that this element took.  The target ends with an empty list, not null, when \p iOther has none and
    /// this element had one; where both have none they are left alone.
    VEKPrtImageElt& operator=(const VEKPrtImageElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// Duplicates the children in depth; a child that cannot be duplicated is left out.  The colour table is
    /// copied, or absent where that fails.  The identity strings are not carried over.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    virtual void SetOrigin(const VEKMathPoint2D& iOrigin);
    virtual void GetOrigin(VEKMathPoint2D& oOrigin) const;
    virtual void SetSize(double iWidth, double iHeight);
    virtual void GetSize(double& oWidth, double& oHeight) const;
    virtual void SetUnits(const VEKPrtImageUnits& iUnits);
    virtual void GetUnits(VEKPrtImageUnits& oUnits) const;
    virtual void SetMatrix(const VEKMath2x2Matrix& iMatrix);
    virtual void GetMatrix(VEKMath2x2Matrix& oMatrix) const;

    /// Takes \p iTable over and deletes the table it had; null leaves the image without one.  The table
    /// already held is kept.
    virtual void SetColourTable(VEKPrtColourTable* iTable);

    /// Lends the image's own table, null if none: do not delete it.  Not const, unlike the other getters: the
    /// mangled name is part of the binary interface.
    virtual void GetColourTable(VEKPrtColourTable*& oTable);
    /// \copydoc VEKPrtGroupElt::AddChild
    virtual void AddChild(VEKPrtGraphicPrimitiveElt* iChild);
    /// \copydoc VEKPrtGroupElt::RemoveChild
    virtual void RemoveChild(VEKPrtGraphicPrimitiveElt* iChild);
    /// \copydoc VEKPrtGroupElt::GetChildren
    virtual void GetChildren(VEKListPtrVEKPrtGraphicPrimitiveElt*& oChildren) const;

private:
    VEKPRT2DMODEL_LOCAL void ReplaceContents(const VEKPrtImageElt& iOther);
    VEKPRT2DMODEL_LOCAL void CopyFields(const VEKPrtImageElt& iOther);

    VEKListPtrVEKPrtGraphicPrimitiveElt* _children = nullptr;
    VEKMathPoint2D _origin{0.0, 0.0};
    double _width = 0.0;
    double _height = 0.0;
    VEKPrtImageUnits _units = VEKPrtImageMillimetre;
    VEKMath2x2Matrix _matrix;
    VEKPrtColourTable* _colourTable = nullptr;
};

#endif
