// Visits all elements of a drawing.
#ifndef VEKPrtWalk_H
#define VEKPrtWalk_H

#include <unordered_set>

#include "VEKPrtChildren.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtPatternElt.h"
#include "VEKPrtSymbolElt.h"

/// Calls \p iUse for each child of an element; a region is a child of its figure, and an element that is no
/// container has none.
template <class Use>
void ForEachChild(VEKPrtGraphicPrimitiveElt& ioElement, Use&& iUse) {
    if (ioElement.IsAKindOf("VEKPrtGroupElt")) {
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(static_cast<VEKPrtGroupElt&>(ioElement)))
            iUse(child);
    } else if (ioElement.IsAKindOf("VEKPrtImageElt")) {
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(static_cast<VEKPrtImageElt&>(ioElement)))
            iUse(child);
    } else if (ioElement.IsAKindOf("VEKPrtPatternElt")) {
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(static_cast<VEKPrtPatternElt&>(ioElement)))
            iUse(child);
    } else if (ioElement.IsAKindOf("VEKPrtSymbolElt")) {
        for (VEKPrtGraphicPrimitiveElt& child : ChildrenOf(static_cast<VEKPrtSymbolElt&>(ioElement)))
            iUse(child);
    } else if (ioElement.IsAKindOf("VEKPrtClosedFigureElt")) {
        for (VEKPrtClosedFigureRegionElt& region : ChildrenOf(static_cast<VEKPrtClosedFigureElt&>(ioElement)))
            iUse(region);
    } else if (ioElement.IsAKindOf("VEKPrtClosedFigureRegionElt")) {
        for (VEKPrtGraphicPrimitiveElt& child :
             ChildrenOf(static_cast<VEKPrtClosedFigureRegionElt&>(ioElement)))
            iUse(child);
    }
}

namespace vekprt {

/// An element on the way from the root of a walk to where it has got to.
struct WalkStep {
    const VEKPrtGraphicPrimitiveElt* element;
    const WalkStep* outer;
};

template <class Visit>
void WalkFrom(VEKPrtGraphicPrimitiveElt& ioElement, const WalkStep* iOuter, int iDepth, Visit& iVisit) {
    for (const WalkStep* step = iOuter; step; step = step->outer)
        if (step->element == &ioElement) return;
    if (!iVisit(ioElement, iDepth)) return;
    const WalkStep here = {&ioElement, iOuter};
    ForEachChild(ioElement,
                 [&](VEKPrtGraphicPrimitiveElt& ioChild) { WalkFrom(ioChild, &here, iDepth + 1, iVisit); });
}

} // namespace vekprt

/// Calls \p iVisit(element, depth) for \p ioRoot, at depth 0, and for what it holds, each element before its
/// children; they are passed over where the call returns false.
///
/// An element that is held twice is visited twice, but none within itself: a cycle ends where it closes.
/// Recurses as deep as the drawing is nested.
template <class Visit>
void Walk(VEKPrtGraphicPrimitiveElt& ioRoot, Visit&& iVisit) {
    vekprt::WalkFrom(ioRoot, nullptr, 0, iVisit);
}
/// The pages are at depth 0.
template <class Visit>
void Walk(const VEKPrtModel& iModel, Visit&& iVisit) {
    for (VEKPrtImageElt& page : ChildrenOf(iModel))
        Walk(page, iVisit);
}

/// The first element with that identifier, in the order of Walk, or null; borrowed from its container.
/// \p ioDrawing is a model or an element.
template <class Drawing>
VEKPrtGraphicPrimitiveElt* FindByID(Drawing& ioDrawing, const VEKUnicodeString& iID) {
    VEKPrtGraphicPrimitiveElt* found = nullptr;
    // An element that is held many times is looked into once.
    std::unordered_set<const VEKPrtGraphicPrimitiveElt*> seen;
    Walk(ioDrawing, [&](VEKPrtGraphicPrimitiveElt& ioElement, int) {
        if (found || !seen.insert(&ioElement).second) return false;
        VEKUnicodeString id;
        ioElement.GetID(id);
        if (id == iID) found = &ioElement;
        return !found;
    });
    return found;
}

#endif
