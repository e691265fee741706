// Every element class: a list for typed tests.  It is checked against the exported caches by exports.sh.
#ifndef AllElements_H
#define AllElements_H

#include <gtest/gtest.h>

#include "VEKListPtrVEKPrtClosedFigureRegionElt.h"
#include "VEKListPtrVEKPrtGraphicPrimitiveElt.h"
#include "VEKListPtrVEKPrtImageElt.h"
#include "VEKPrtBitmapImageElt.h"
#include "VEKPrtCircleElt.h"
#include "VEKPrtCircularArcElt.h"
#include "VEKPrtClosedFigureElt.h"
#include "VEKPrtClosedFigureRegionElt.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtDisjointPolylineElt.h"
#include "VEKPrtEllipseElt.h"
#include "VEKPrtEllipticalArcElt.h"
#include "VEKPrtGraphicPrimitiveElt.h"
#include "VEKPrtGroupElt.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtMarkerElt.h"
#include "VEKPrtModel.h"
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

using AllElements =
    testing::Types<VEKPrtGraphicPrimitiveElt, VEKPrtBitmapImageElt, VEKPrtCircleElt, VEKPrtCircularArcElt,
                   VEKPrtClosedFigureElt, VEKPrtClosedFigureRegionElt, VEKPrtDisjointPolylineElt,
                   VEKPrtEllipseElt, VEKPrtEllipticalArcElt, VEKPrtGroupElt, VEKPrtImageElt, VEKPrtLineElt,
                   VEKPrtMarkerElt, VEKPrtNURBSElt, VEKPrtPatternElt, VEKPrtPolyCubicBezierElt,
                   VEKPrtPolyPolygonElt, VEKPrtPolyQuadraticBezierElt, VEKPrtPolygonElt, VEKPrtPolylineElt,
                   VEKPrtRectangleElt, VEKPrtSymbolElt, VEKPrtTextElt>;

// Those with a list of children of any class.
using Containers = testing::Types<VEKPrtGroupElt, VEKPrtImageElt, VEKPrtPatternElt, VEKPrtSymbolElt,
                                  VEKPrtClosedFigureRegionElt>;
// All that hold members by count.
using Holders = testing::Types<VEKPrtGroupElt, VEKPrtImageElt, VEKPrtPatternElt, VEKPrtSymbolElt,
                               VEKPrtClosedFigureRegionElt, VEKPrtClosedFigureElt, VEKPrtModel>;
// Those with nothing but a sequence of points besides their records.
using PointArrays = testing::Types<VEKPrtPolylineElt, VEKPrtPolyCubicBezierElt, VEKPrtPolyQuadraticBezierElt,
                                   VEKPrtPolygonElt, VEKPrtDisjointPolylineElt>;
using Filled = testing::Types<VEKPrtRectangleElt, VEKPrtCircleElt, VEKPrtCircularArcElt, VEKPrtEllipseElt,
                              VEKPrtEllipticalArcElt, VEKPrtTextElt, VEKPrtPolygonElt, VEKPrtPolyPolygonElt,
                              VEKPrtClosedFigureElt>;

using Stroked =
    testing::Types<VEKPrtLineElt, VEKPrtRectangleElt, VEKPrtCircleElt, VEKPrtCircularArcElt, VEKPrtEllipseElt,
                   VEKPrtEllipticalArcElt, VEKPrtMarkerElt, VEKPrtTextElt, VEKPrtPolylineElt,
                   VEKPrtPolygonElt, VEKPrtDisjointPolylineElt, VEKPrtPolyCubicBezierElt,
                   VEKPrtPolyQuadraticBezierElt, VEKPrtPolyPolygonElt, VEKPrtNURBSElt, VEKPrtClosedFigureElt>;
// Those that have a transform but no stroke.
using PlacedOnly = testing::Types<VEKPrtBitmapImageElt, VEKPrtGroupElt, VEKPrtPatternElt, VEKPrtSymbolElt,
                                  VEKPrtClosedFigureRegionElt>;

/// A suite of typed tests.
#define SUITE_OF(Name, Types)                                                                                \
    template <class>                                                                                         \
    class Name : public testing::Test {};                                                                    \
    TYPED_TEST_SUITE(Name, Types, )

template <class T, class List>
constexpr bool In = false;
template <class T, class... Ts>
constexpr bool In<T, testing::Types<Ts...>> = (std::is_same_v<T, Ts> || ...);

#endif
