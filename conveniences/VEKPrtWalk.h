/// \file
/// Visits, finds and duplicates the elements of a drawing.
#ifndef VEKPrtWalk_H
#define VEKPrtWalk_H

#include <unordered_set>

#include "VEKPrtChildren.h"
#include "VEKRef.h"

namespace vekprt {

namespace detail {

// Calls its function for each member of a holder, and for nothing of any other element.
template <class Use>
struct UseChildren {
    Use& use;

    template <class Container>
    typename std::enable_if<HasChildren<Container>::value>::type operator()(Container& ioContainer) const {
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(ioContainer))
            use(child);
    }
    void operator()(VEKPrtClosedFigureElt& ioFigure) const {
        for (VEKPrtClosedFigureRegionElt& region : ChildrenOf(ioFigure))
            use(region);
    }
    void operator()(VEKPrtGraphicPrimitiveElt&) const {}
};

} // namespace detail

/// Calls \p iUse for each child of an element; a region is a child of its figure, and an element that is no
/// container has none.
template <class Use>
void ForEachChild(VEKPrtGraphicPrimitiveElt& ioElement, Use&& iUse) {
    Visit(ioElement, detail::UseChildren<Use>{iUse});
}

namespace detail {

// One step of the path from the root to the current element.
struct WalkStep {
    const VEKPrtGraphicPrimitiveElt* element;
    const WalkStep* outer;
};

template <class Use>
void WalkFrom(VEKPrtGraphicPrimitiveElt& ioElement, const WalkStep* iOuter, int iDepth, Use& iVisit) {
    for (const WalkStep* step = iOuter; step; step = step->outer)
        if (step->element == &ioElement) return;
    if (!iVisit(ioElement, iDepth)) return;
    const WalkStep here = {&ioElement, iOuter};
    ForEachChild(ioElement,
                 [&](VEKPrtGraphicPrimitiveElt& ioChild) { WalkFrom(ioChild, &here, iDepth + 1, iVisit); });
}

} // namespace detail

/// Calls \p iVisit(element, depth) for \p ioRoot, at depth 0, and for what it holds, each element before its
/// children; they are passed over where the call returns false.
///
/// An element that is held twice is visited twice, but none within itself: a cycle ends where it closes.
/// Recurses as deep as the drawing is nested.
template <class Use>
void Walk(VEKPrtGraphicPrimitiveElt& ioRoot, Use&& iVisit) {
    detail::WalkFrom(ioRoot, nullptr, 0, iVisit);
}
/// The pages are at depth 0.
template <class Use>
void Walk(const VEKPrtModel& iModel, Use&& iVisit) {
    for (VEKPrtImageElt& page : ChildrenOf(iModel))
        Walk(page, iVisit);
}

/// The first element of a drawing, a model or an element, for which \p iTest(element) is true, in the order
/// of Walk; null if there is none.  Borrowed from its container.  An element that is held many times is
/// tested once.
template <class Drawing, class Test>
VEKPrtGraphicPrimitiveElt* FindIf(Drawing& ioDrawing, Test&& iTest) {
    VEKPrtGraphicPrimitiveElt* found = nullptr;
    std::unordered_set<const VEKPrtGraphicPrimitiveElt*> seen;
    Walk(ioDrawing, [&](VEKPrtGraphicPrimitiveElt& ioElement, int) {
        if (found || !seen.insert(&ioElement).second) return false;
        if (iTest(ioElement)) found = &ioElement;
        return !found;
    });
    return found;
}

/// The first element with that identifier, as FindIf yields it.
template <class Drawing>
VEKPrtGraphicPrimitiveElt* FindByID(Drawing& ioDrawing, const VEKUnicodeString& iID) {
    return FindIf(ioDrawing, [&](const VEKPrtGraphicPrimitiveElt& iElement) {
        VEKUnicodeString id;
        iElement.GetID(id);
        return id == iID;
    });
}

/// The first element of a drawing that holds \p iElement, as FindIf yields it; null for a page and for what
/// is not in the drawing.
template <class Drawing>
VEKPrtGraphicPrimitiveElt* HolderOf(Drawing& ioDrawing, const VEKPrtGraphicPrimitiveElt& iElement) {
    return FindIf(ioDrawing, [&](VEKPrtGraphicPrimitiveElt& ioHolder) {
        bool holds = false;
        ForEachChild(ioHolder,
                     [&](VEKPrtGraphicPrimitiveElt& ioChild) { holds = holds || &ioChild == &iElement; });
        return holds;
    });
}

/// What Duplicate makes, as the element's own type; null when it could not be allocated.  A client's class
/// must have a Duplicate of its own.
template <class Element>
VEKRef<Element> DuplicateOf(const Element& iElement) {
    VEKPrtGraphicPrimitiveElt* copy = nullptr;
    const_cast<Element&>(iElement).Duplicate(copy);
    return VEKRef<Element>::Adopt(static_cast<Element*>(copy));
}

} // namespace vekprt

#endif
