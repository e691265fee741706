// The steps that all element classes share, each written once: meta-object family, copying, duplication.
#ifndef ElementProtocol_H
#define ElementProtocol_H

#include "VEKMetaClass.h"
#include "VEKPrtGraphicPrimitiveElt.h"

namespace vekprt {

/// Registers a class and keeps its meta-object in \p oCache; null when that cannot be allocated, so that a
/// later call tries again.  A class whose base has no meta-object is registered without a base.
VEKMetaClass* RegisterClass(VEKMetaClass*& oCache, const char* iClassName, VEKMetaClass* iBase,
                            const char* iLateType, long iSize);

// For a class that has no meta-object: null, and 0.
const char* IdOf(const VEKMetaClass* iClass);
const char* NameOf(const VEKMetaClass* iClass);
int IsAKindOf(const VEKMetaClass* iClass, const char* iClassName);

// The copy constructor of an element class starts from a default object, base included, so that a copy has no
// identity strings, and calls CopyOwn: fields in order of declaration, then records.  In containers this is
// ReplaceContents, which in an assignment also releases the old children.

/// Assignment of an element class: the base first, then by its own CopyOwn.
template <class Element>
void Assign(Element& ioTarget, const Element& iSource, void (Element::*iCopyOwn)(const Element&)) {
    if (&iSource == &ioTarget) return;
    ioTarget.VEKPrtGraphicPrimitiveElt::operator=(iSource);
    (ioTarget.*iCopyOwn)(iSource);
}

// The recipes of duplication.  Clients can observe which one a class uses (allocations, partial failures), so
// each class keeps its own.

/// Duplicates by default construction, then assignment.  The new element, null when it cannot be allocated,
/// is stored into \p oCopy before anything else, and returned with its own type.
template <class Element, class Out>
Element* DuplicateByAssignment(const Element& iSource, Out*& oCopy) {
    Element* const copy = new Element;
    oCopy = copy;
    if (copy) *copy = iSource;
    return copy;
}

/// Duplicates by copy construction, then assignment, which also copies the identity strings.
template <class Element, class Out>
Element* DuplicateByCopying(const Element& iSource, Out*& oCopy) {
    Element* const copy = new Element(iSource);
    oCopy = copy;
    if (copy) *copy = iSource;
    return copy;
}

/// Duplicates by default construction alone: the class then copies its contents, without identity strings.
template <class Element, class Out>
Element* DuplicateByConstruction(Out*& oCopy) {
    Element* const copy = new Element;
    oCopy = copy;
    return copy;
}

} // namespace vekprt

// The source half of VEKPRT_DECLARE_META_FAMILY.  A macro because the name of the class becomes a string and
// part of a symbol.  A wrong length of the name fails to compile.  The queries answer for the class that
// defines them, not for the dynamic class.
#define VEKPRT_IMPLEMENT_META_FAMILY(Self, NameLength, Base)                                                 \
    static_assert(sizeof(#Self) - 1 == (NameLength), #Self ": wrong length of the name");                    \
    VEKMetaClass* meta_object__##NameLength##Self = nullptr;                                                 \
    VEKMetaClass* Self::MetaObject() {                                                                       \
        static const char lateType[] = "VEKnull";                                                            \
        VEKMetaClass*& cache = meta_object__##NameLength##Self;                                              \
        return cache ? cache                                                                                 \
                     : vekprt::RegisterClass(cache, #Self, Base::MetaObject(), lateType, sizeof(Self));      \
    }                                                                                                        \
    VEKMetaClass* Self::GetMetaObject() const { return MetaObject(); }                                       \
    const char* Self::IsA() const { return vekprt::NameOf(MetaObject()); }                                   \
    int Self::IsAKindOf(const char* iClassName) const {                                                      \
        return vekprt::IsAKindOf(MetaObject(), iClassName);                                                  \
    }                                                                                                        \
    const char* Self::ClassId() { return vekprt::IdOf(MetaObject()); }                                       \
    const char* Self::ClassName() { return vekprt::NameOf(MetaObject()); }                                   \
    VEKBaseUnknown* Self::CreateItself() { return nullptr; }

#endif
