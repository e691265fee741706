// The steps that all element classes share, each written once: meta-object family, copying, duplication.
#ifndef ElementProtocol_H
#define ElementProtocol_H

#include "VEKMetaClass.h"
#include "VEKPrtGraphicPrimitiveElt.h"

namespace vekprt {

/// Registers a class and keeps its meta-object in \p oCache; null when that could not be allocated, so that a
/// later call tries again.  A class whose base has no meta-object is registered without a base.
VEKMetaClass* RegisterClass(VEKMetaClass*& oCache, const char* iClassName, VEKMetaClass* iBase,
                            const char* iLateType, long iSize);

// What a class answers while it has no meta-object: null, and 0.
const char* IdOf(const VEKMetaClass* iClass);
const char* NameOf(const VEKMetaClass* iClass);
int IsAKindOf(const VEKMetaClass* iClass, const char* iClassName);

// The copy constructor of an element class starts from a default object, base included, so that a copy
// carries no identity strings, and calls CopyOwn: fields in order of declaration, then records.  A copy of
// itself is a default object, as there is nothing else in it to copy.

/// Assignment of an element class, around its own CopyOwn: the base first.
template <class Element>
void Assign(Element& ioTarget, const Element& iSource, void (Element::*iCopyOwn)(const Element&)) {
    if (&iSource == &ioTarget) return;
    ioTarget.VEKPrtGraphicPrimitiveElt::operator=(iSource);
    (ioTarget.*iCopyOwn)(iSource);
}

// The recipes of duplication.  Which one a class uses can be seen from what it allocates, and from what the
// copy holds when an allocation fails part-way, so each class keeps its own
// (EveryStroked.DuplicatesByItsRecipe).

/// Duplicates by default construction, then assignment.  The new element, null when it cannot be allocated,
/// is stored into \p oCopy before anything else, and returned with its own type.
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

/// Duplicates by default construction alone: the class then copies what it wants, without identity strings.
template <class Element, class Out>
Element* DuplicateByConstruction(Out*& oCopy) {
    Element* const copy = new Element;
    oCopy = copy;
    return copy;
}

} // namespace vekprt

// The source half of VEKPRT_DECLARE_META_FAMILY.  A macro because the name of the class becomes a string and
// part of a symbol; a wrong length of the name stops the build.  The queries answer for the class that
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
