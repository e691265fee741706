/// \file
/// A page or canvas.
#ifndef VEKPrtImageElt_H
#define VEKPrtImageElt_H

#include "VEKMath2x2Matrix.h"
#include "VEKMathPoint2D.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtGraphicPrimitiveElt.h"

class VEKListPtrVEKPrtGraphicPrimitiveElt;
class VEKPrtColourTable;

/// The units of an image's measures.  Any value is stored and handed back.
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
/// Owns its colour table, which is not reference-counted; holds one reference on each child, for each time
/// that it was added.
class VEKPRT2DMODEL_API VEKPrtImageElt : public VEKPrtGraphicPrimitiveElt {
public:
    /// Measured in millimetres, with the identity as its matrix.
    VEKPrtImageElt();
    VEKPrtImageElt(const VEKMathPoint2D& iOrigin, double iWidth, double iHeight,
                   const VEKPrtImageUnits& iUnits, const VEKMath2x2Matrix& iMatrix);

    /// Shares the children as VEKPrtGroupElt does, and copies the colour table.  The copy's table is empty or
    /// absent when allocation fails.
    VEKPrtImageElt(const VEKPrtImageElt& iOther);
    ~VEKPrtImageElt() override;

    /// Deletes the colour table and copies that of \p iOther, as the copy constructor does; replaces the
    /// children as VEKPrtGroupElt::operator= does.
    ///
    /// \warning The old child at the last position keeps the reference that this element took, and is never
    /// freed unless the caller releases it.  Assign to images without children only.
    VEKPrtImageElt& operator=(const VEKPrtImageElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// Duplicates the children as VEKPrtGroupElt::Duplicate does, and copies the colour table.  The copy's
    /// table is empty or absent when allocation fails.  The identity strings are not copied.
    void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy) override;

    /// The lower left corner, as this project's consumers read it.
    virtual void SetOrigin(const VEKMathPoint2D& iOrigin);
    virtual void GetOrigin(VEKMathPoint2D& oOrigin) const;
    virtual void SetSize(double iWidth, double iHeight);
    virtual void GetSize(double& oWidth, double& oHeight) const;
    virtual void SetUnits(const VEKPrtImageUnits& iUnits);
    virtual void GetUnits(VEKPrtImageUnits& oUnits) const;
    virtual void SetMatrix(const VEKMath2x2Matrix& iMatrix);
    virtual void GetMatrix(VEKMath2x2Matrix& oMatrix) const;

    /// Takes ownership of \p iTable, which must come from `new`, and deletes the table it had; null leaves
    /// the image without one.  Setting the table already held does nothing.
    virtual void SetColourTable(VEKPrtColourTable* iTable);

    /// Lends the image's own table, null if it has none: do not delete it.  Not const, unlike the other
    /// getters: the mangled name is part of the binary interface.
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
