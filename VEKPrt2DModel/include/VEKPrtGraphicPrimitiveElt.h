/// \file
/// The base of every element of a drawing.
#ifndef VEKPrtGraphicPrimitiveElt_H
#define VEKPrtGraphicPrimitiveElt_H

#include "VEKBaseUnknown.h"
#include "VEKPrt2DModelExport.h"
#include "VEKPrtMetaFamily.h"
#include "VEKUnicodeString.h"

/// Which parts of a closed shape or a text are drawn.  Any value is stored and handed back; new elements have
/// VEKPrtDrawOutline.
enum VEKPrtDrawStyle : int { VEKPrtDrawInterior = 0, VEKPrtDrawOutline = 1, VEKPrtDrawBoth = 2 };

extern VEKPRT2DMODEL_API VEKMetaClass* meta_object__25VEKPrtGraphicPrimitiveElt;

/// An element: identifier, description and title, and the protocol of all element classes.
///
/// Every element class follows it, and says in its own header only what it adds or does differently:
/// - A new element, made by any constructor or by Duplicate, has count 1: its creator's reference.  Release
///   deletes the element when the count reaches 0, so what is released, by a client or by a container, must
///   come from `new`, `Make` or Duplicate, never from the stack.
/// - The copy constructor gives every field its default, then copies the class's own fields and records, but
///   not the identity strings (identifier, description, title).
/// - Assignment of an element to itself does nothing.  Any other copies the framework's data words and the
///   identity strings, then the own fields, then the records.  Both elements keep their reference counts;
///   while it runs, a container may hold the source.
/// - Setters store what they are given, unchecked, and copy records and strings; getters copy out.
///   Array getters hand out the element's own array, valid until its next setter, an assignment to the
///   element or its destruction; list getters hand out the element's own list, valid until an assignment to
///   the element or its destruction.
/// - No operation throws or reports a failed allocation; what could not be allocated is absent.
///
/// The model stores values and leaves their meaning to the consumer: units, the direction of the y axis, the
/// sense of angles, the order of transforms, draw styles, transparency, boxes and clipping.
/// docs/drawing.md says how this project's consumers read them: coordinates and lengths are in units of the
/// page, angles in degrees.  Headers mention such readings where they help.
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
    /// \p oCopy is always written: null when the element cannot be allocated.  Leaf elements copy the
    /// identity strings.  Containers do not; they duplicate each child, and a child that they hold twice
    /// becomes two.
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
