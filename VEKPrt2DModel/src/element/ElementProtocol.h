// What every element class does alike, each step once: meta-object family, copying, duplication.
#ifndef ElementProtocol_H
#define ElementProtocol_H

#include "VEKMetaClass.h"
#include "VEKPrtGraphicPrimitiveElt.h"

namespace vekprt {

/// The meta-object in \p ioCache, registered first where there is none yet.  Null when memory is out: a
/// class is not registered without its base, so that a later call can do it right.
VEKMetaClass* RetrieveMetaObject(VEKMetaClass*& ioCache, const char* iClassName, VEKMetaClass* (*iBase)(),
                                 const char* iLateType, long iSize);

// The recipes of duplication.  Which one a class uses shows in what it allocates, and in what it has when
// memory runs out in between, so each class keeps its own (EveryStroked.CopiesCarryTheRecordsByTheirRecipe).

/// Duplicates by default construction, then assignment.  The new element, null when memory is out, is
/// stored into \p oCopy before anything else, and returned with its own type.
template <class Element, class Out>
Element* DuplicateByAssignment(const Element& iSource, Out*& oCopy) {
    Element* const copy = new Element;
    oCopy = copy;
    if (copy) *copy = iSource;
    return copy;
}

/// Duplicates by copy construction, then assignment, which brings the identity strings.
template <class Element, class Out>
Element* DuplicateByCopying(const Element& iSource, Out*& oCopy) {
    Element* const copy = new Element(iSource);
    oCopy = copy;
    if (copy) *copy = iSource;
    return copy;
}

/// Duplicates by default construction alone: the class copies what it means to, without identity strings.
template <class Element, class Out>
Element* DuplicateByConstruction(Out*& oCopy) {
    Element* const copy = new Element;
    oCopy = copy;
    return copy;
}

} // namespace vekprt

// The source half of VEKPRT_DECLARE_META_FAMILY: cache, registration, queries.  The queries ask the class
// that they stand in, not the dynamic class.  A wrong length of the name stops the build.
#define VEKPRT_IMPLEMENT_META_FAMILY(Self, NameLength, Base)                                                 \
    static_assert(sizeof(#Self) - 1 == (NameLength), #Self ": wrong length of the name");                    \
    VEKMetaClass* meta_object__##NameLength##Self = nullptr;                                                 \
    VEKMetaClass* Self::MetaObject() {                                                                       \
        static const char lateType[] = "VEKnull";                                                            \
        return vekprt::RetrieveMetaObject(meta_object__##NameLength##Self, #Self, &Base::MetaObject,         \
                                          lateType, static_cast<long>(sizeof(Self)));                        \
    }                                                                                                        \
    VEKMetaClass* Self::GetMetaObject() const { return MetaObject(); }                                       \
    const char* Self::IsA() const { return ClassName(); }                                                    \
    int Self::IsAKindOf(const char* iClassName) const {                                                      \
        const VEKMetaClass* const meta = MetaObject();                                                       \
        return meta ? meta->IsAKindOf(iClassName) : 0;                                                       \
    }                                                                                                        \
    const char* Self::ClassId() {                                                                            \
        const VEKMetaClass* const meta = MetaObject();                                                       \
        return meta ? meta->GetId() : nullptr;                                                               \
    }                                                                                                        \
    const char* Self::ClassName() {                                                                          \
        const VEKMetaClass* const meta = MetaObject();                                                       \
        return meta ? meta->GetName() : nullptr;                                                             \
    }                                                                                                        \
    VEKBaseUnknown* Self::CreateItself() { return nullptr; }

// Copy constructor and assignment of an element class, around its own CopyOwn: fields in order of
// declaration, then records.  The copy constructor starts from a default object, base included, so a copy
// carries no identity strings and a copy of itself is a default object.
#define VEKPRT_IMPLEMENT_COPYING(Self)                                                                       \
    Self::Self(const Self& iOther) : Self() {                                                                \
        if (&iOther != this) CopyOwn(iOther);                                                                \
    }                                                                                                        \
    Self& Self::operator=(const Self& iOther) {                                                              \
        if (&iOther == this) return *this;                                                                   \
        VEKPrtGraphicPrimitiveElt::operator=(iOther);                                                        \
        CopyOwn(iOther);                                                                                     \
        return *this;                                                                                        \
    }

// Both of the above for a class derived from the element base, as all element classes are.
#define VEKPRT_IMPLEMENT_ELEMENT(Self, NameLength)                                                           \
    VEKPRT_IMPLEMENT_META_FAMILY(Self, NameLength, VEKPrtGraphicPrimitiveElt)                                \
    VEKPRT_IMPLEMENT_COPYING(Self)

// Setter and getter of an attribute record, for example StrokeAttributes: assignment in both directions.
#define VEKPRT_IMPLEMENT_RECORD(Self, Record, Field)                                                         \
    void Self::Set##Record(const VEKPrt##Record& iAttributes) { Field = iAttributes; }                       \
    void Self::Get##Record(VEKPrt##Record& oAttributes) const { oAttributes = Field; }

#endif
