// The base of every element of a drawing.
#ifndef VEKPrtGraphicPrimitiveElt_H
#define VEKPrtGraphicPrimitiveElt_H

#include "VEKBaseUnknown.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtMetaFamily.h"
#include "VEKUnicodeString.h"

/// Which parts of a closed shape or a text are drawn.  Stored and handed back, whatever its value; the names
/// are those by which this project's consumer reads it.  New elements have VEKPrtDrawOutline.
enum VEKPrtDrawStyle : int { VEKPrtDrawInterior = 0, VEKPrtDrawOutline = 1, VEKPrtDrawBoth = 2 };

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__25VEKPrtGraphicPrimitiveElt;

/// An element: identifier, description and title, and the protocol of all element classes.
///
/// Every element class follows it, and says in its own header only what it adds or does differently:
/// - A new element, made by any constructor or by Duplicate, has count 1: its creator's reference.
/// - The copy constructor gives every field its default, then copies the class's own fields and
///   records.  The identity strings (identifier, description, title) are left out.  A copy of itself
///   is a default object.
/// - Assignment does nothing for the element itself; otherwise it copies the framework's data words and the
///   identity strings, then the own fields, then the records.  Reference counts of the two elements stay as
///   they are, though a container may hold the source meanwhile.
/// - Setters store what they are given, unchecked, and copy records and strings; getters copy out.
///   Array getters hand out the element's own array, valid until its next setter, an assignment to the
///   element or its destruction; list getters the element's own list, valid until an assignment or the
///   destruction.
/// - No operation throws or reports a failed allocation; what could not be allocated is absent.
///
/// The model gives no meaning to what it stores: units, the direction of the y axis, the sense of angles, the
/// order of transforms, draw styles, transparency, boxes and clipping are what a consumer makes of them.  The
/// header of the SVG consumer, SvgWriter.h, says how that one reads them.
///
/// Derived classes append their virtual functions after GetTitle.
class VEKPRT2DMODEL_API VEKPrtGraphicPrimitiveElt : public VEKBaseUnknown {
public:
    VEKPrtGraphicPrimitiveElt();

    /// Copies the three identity strings, unlike the copy constructor of any derived class.
    VEKPrtGraphicPrimitiveElt(const VEKPrtGraphicPrimitiveElt& iOther);
    ~VEKPrtGraphicPrimitiveElt() override;
    VEKPrtGraphicPrimitiveElt& operator=(const VEKPrtGraphicPrimitiveElt& iOther);

    VEKPRT_DECLARE_META_FAMILY

    /// Makes an independent element and hands its one reference to the caller.
    ///
    /// Its class is the one that defines this function: a class derived by a client must override it, or its
    /// instances are duplicated as their base.
    ///
    /// \p oCopy is overwritten in any case: null when the element cannot be allocated.  Leaf elements
    /// carry the identity strings over; containers do not, and duplicate each child in turn, a child
    /// that they hold twice becoming two.
    virtual void Duplicate(VEKPrtGraphicPrimitiveElt*& oCopy);

    virtual void SetID(const VEKUnicodeString& iID);
    virtual void GetID(VEKUnicodeString& oID) const;
    virtual void SetDescription(const VEKUnicodeString& iDescription);
    virtual void GetDescription(VEKUnicodeString& oDescription) const;
    virtual void SetTitle(const VEKUnicodeString& iTitle);
    virtual void GetTitle(VEKUnicodeString& oTitle) const;

private:
    VEKPRT2DMODEL_LOCAL void CopyOwn(const VEKPrtGraphicPrimitiveElt& iOther);

    VEKUnicodeString _id;
    VEKUnicodeString _description;
    VEKUnicodeString _title;
};

#endif
