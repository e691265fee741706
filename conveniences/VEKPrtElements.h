/// \file
/// All element classes with their headers, and calls by class.
#ifndef VEKPrtElements_H
#define VEKPrtElements_H

#include <type_traits>
#include <utility>

#include "VEKMetaClass.h"
#include "VEKPrtBitmapImageElt.h"
#include "VEKPrtCircleElt.h"
#include "VEKPrtCircularArcElt.h"
#include "VEKPrtClosedFigureElt.h"
#include "VEKPrtClosedFigureRegionElt.h"
#include "VEKPrtDisjointPolylineElt.h"
#include "VEKPrtEllipseElt.h"
#include "VEKPrtEllipticalArcElt.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtMarkerElt.h"
#include "VEKPrtNURBSElt.h"
#include "VEKPrtPatternElt.h"
#include "VEKPrtPolyCubicBezierElt.h"
#include "VEKPrtPolyPolygonElt.h"
#include "VEKPrtPolyQuadraticBezierElt.h"
#include "VEKPrtPolygonElt.h"
#include "VEKPrtPolylineElt.h"
#include "VEKPrtRectangleElt.h"
#include "VEKPrtSymbolElt.h"
#include "VEKPrtTextElt.h"

class VEKListPtrVEKPrtGraphicPrimitiveElt;

namespace vekprt {

/// Classes, in an order.
template <class... Classes>
struct ClassList {};

/// Every element class but the base, those that drawings hold most of first: Visit asks in this order.
using ElementClasses =
    ClassList<VEKPrtLineElt, VEKPrtPolylineElt, VEKPrtTextElt, VEKPrtGroupElt, VEKPrtPolygonElt,
              VEKPrtPolyPolygonElt, VEKPrtRectangleElt, VEKPrtCircleElt, VEKPrtCircularArcElt,
              VEKPrtEllipseElt, VEKPrtEllipticalArcElt, VEKPrtMarkerElt, VEKPrtDisjointPolylineElt,
              VEKPrtPolyCubicBezierElt, VEKPrtPolyQuadraticBezierElt, VEKPrtNURBSElt, VEKPrtBitmapImageElt,
              VEKPrtClosedFigureElt, VEKPrtClosedFigureRegionElt, VEKPrtSymbolElt, VEKPrtPatternElt,
              VEKPrtImageElt>;

namespace detail {

// Found for a class that has the getter; the overloads with an ellipsis for one that has not.
template <class Class>
auto Stroke(Class* iElement)
    -> decltype(iElement->GetStrokeAttributes(std::declval<VEKPrtStrokeAttributes&>()), std::true_type());
std::false_type Stroke(...);
template <class Class>
auto Fill(Class* iElement)
    -> decltype(iElement->GetFillAttributes(std::declval<VEKPrtFillAttributes&>()), std::true_type());
std::false_type Fill(...);
template <class Class>
auto Transform(Class* iElement)
    -> decltype(iElement->GetTransformAttributes(std::declval<VEKPrtTransformAttributes&>()),
                std::true_type());
std::false_type Transform(...);
template <class Class>
auto Children(Class* iElement)
    -> decltype(iElement->GetChildren(std::declval<VEKListPtrVEKPrtGraphicPrimitiveElt*&>()),
                std::true_type());
std::false_type Children(...);

// Registers the classes of a list.
template <class... Classes>
bool Register(ClassList<Classes...>) {
    bool all = true;
    for (const VEKMetaClass* const meta : {Classes::MetaObject()...})
        all = all && meta;
    return all;
}

template <class Class>
using Plain = typename std::remove_const<Class>::type*;

} // namespace detail

/// \name What a class has
///
/// Derived from its getters, so that a new class needs no entry; true for a const class, too.
/// @{
template <class Class>
struct HasStroke : decltype(detail::Stroke(detail::Plain<Class>())) {};
/// Such a class has a draw style, too.
template <class Class>
struct HasFill : decltype(detail::Fill(detail::Plain<Class>())) {};
template <class Class>
struct HasTransform : decltype(detail::Transform(detail::Plain<Class>())) {};
/// Whether it holds elements of any class; the closed figure, which holds regions, does not.
template <class Class>
struct HasChildren : decltype(detail::Children(detail::Plain<Class>())) {};
/// @}

/// Registers all element classes with the framework, as the first question about each would.  Nothing does so
/// with a lock: call this before threads use models of their own.  False when memory ran out.
inline bool RegisterElements() { return detail::Register(ElementClasses()); }

namespace detail {

// The result of a visitor, which is the same for every class.
template <class Element, class Visitor>
using ResultOf = decltype(std::declval<Visitor&>()(std::declval<Element&>()));

// Whether a visitor has a general overload.
template <class Base, class Visitor>
auto Takes(int) -> decltype(std::declval<Visitor&>()(std::declval<Base&>()), std::true_type());
template <class Base, class Visitor>
std::false_type Takes(long);

template <class Result, class Base, class Visitor>
Result VisitBase(Base& ioElement, Visitor& ioVisitor, std::true_type) {
    return ioVisitor(ioElement);
}
template <class Result, class Base, class Visitor>
Result VisitBase(Base&, Visitor&, std::false_type) {
    return Result();
}

template <class Base, class Class>
using LikeBase = typename std::conditional<std::is_const<Base>::value, const Class, Class>::type;

// The last resort: neither one of the classes nor derived from one.
template <class Result, class Base, class Visitor>
Result VisitDerived(ClassList<>, Base& ioElement, Visitor& ioVisitor) {
    return VisitBase<Result>(ioElement, ioVisitor, decltype(Takes<Base, Visitor>(0))());
}
// No class of the library derives from another one, so the first that fits is the nearest.
template <class Result, class Base, class Visitor, class First, class... Rest>
Result VisitDerived(ClassList<First, Rest...>, Base& ioElement, Visitor& ioVisitor) {
    if (ioElement.IsAKindOf(First::ClassName()))
        return ioVisitor(static_cast<LikeBase<Base, First>&>(ioElement));
    return VisitDerived<Result>(ClassList<Rest...>(), ioElement, ioVisitor);
}

template <class Result, class Base, class Visitor>
Result VisitExact(ClassList<>, const VEKMetaClass*, Base& ioElement, Visitor& ioVisitor) {
    return VisitDerived<Result>(ElementClasses(), ioElement, ioVisitor);
}
// Classes that could not be registered, for want of memory, all have null for a meta-object.
template <class Result, class Base, class Visitor, class First, class... Rest>
Result VisitExact(ClassList<First, Rest...>, const VEKMetaClass* iClass, Base& ioElement,
                  Visitor& ioVisitor) {
    if (iClass && iClass == First::MetaObject())
        return ioVisitor(static_cast<LikeBase<Base, First>&>(ioElement));
    return VisitExact<Result>(ClassList<Rest...>(), iClass, ioElement, ioVisitor);
}

} // namespace detail

/// Calls \p iVisitor with \p ioElement as its own class, and returns what the call returns.
///
/// A visitor is an object with `operator()` for every class: by its name, by a template for many
/// (`typename std::enable_if<HasStroke<Element>::value>::type operator()(Element&)`), or by a general one for
/// VEKPrtGraphicPrimitiveElt& that takes all the others; one that lacks a class does not compile.  All calls
/// return the same type.  An element of a client's class is visited as the class of the library that it is
/// derived from; one derived from the base alone, and a bare base, by the general overload, or, where there
/// is none, not at all: the result is then a default one.
template <class Visitor>
auto Visit(VEKPrtGraphicPrimitiveElt& ioElement, Visitor&& iVisitor)
    -> detail::ResultOf<VEKPrtLineElt, Visitor> {
    using Result = detail::ResultOf<VEKPrtLineElt, Visitor>;
    return detail::VisitExact<Result>(ElementClasses(), ioElement.GetMetaObject(), ioElement, iVisitor);
}
/// The same for a const element: the visitor is called with const classes.
template <class Visitor>
auto Visit(const VEKPrtGraphicPrimitiveElt& iElement, Visitor&& iVisitor)
    -> detail::ResultOf<const VEKPrtLineElt, Visitor> {
    using Result = detail::ResultOf<const VEKPrtLineElt, Visitor>;
    return detail::VisitExact<Result>(ElementClasses(), iElement.GetMetaObject(), iElement, iVisitor);
}

} // namespace vekprt

#endif
