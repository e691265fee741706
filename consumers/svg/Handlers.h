// How the page gets at the functions that write the elements of a class.
#ifndef Handlers_H
#define Handlers_H

#include "Style.h"

namespace vekprt::svg {

/// Writes an element by the handler of its class, or refers to it; warns if the class has none.
void WriteElement(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement);
/// Appends an element, seen through \p iMap, to the outline of a region.
void AppendToRegion(SvgPage& ioPage, PathData& ioPath, VEKPrtGraphicPrimitiveElt& ioElement,
                    const Affine& iMap);

void AddShapes(SvgPage& ioPage);
void AddContainers(SvgPage& ioPage);
void AddTextAndBitmap(SvgPage& ioPage);

template <class Element>
void WriteAs(SvgPage& ioPage, VEKPrtGraphicPrimitiveElt& ioElement) {
    Write(ioPage, static_cast<Element&>(ioElement));
}
/// Makes Write(page, element) the handler of these classes.
template <class... Elements>
void AddHandlers(SvgPage& ioPage) {
    ((ioPage.handlers[Elements::MetaObject()].write = &WriteAs<Elements>), ...);
}

} // namespace vekprt::svg

#endif
