// Values of the host framework's enumerations.  A host may give them any names, so none is used here.
#ifndef HostValues_H
#define HostValues_H

#include "VEKMetaClass.h"
#include "VEKPrintLineAttribute.h"
#include "VEKPrintMarkerAttribute.h"
#include "VEKPrintTextAttribute.h"
#include "VEKPrintTransformType.h"

namespace vekprt {

// What element classes register as.
constexpr auto typeImplementation = static_cast<ENUMTypeOfClass>(1);

constexpr auto transformMatrix = static_cast<VEKPrintTransformType>(0);
constexpr auto transformTranslation = static_cast<VEKPrintTransformType>(1);
constexpr auto transformRotation = static_cast<VEKPrintTransformType>(2);
constexpr auto transformScaleX = static_cast<VEKPrintTransformType>(3);
constexpr auto transformScaleY = static_cast<VEKPrintTransformType>(4);
constexpr auto transformSkewX = static_cast<VEKPrintTransformType>(5);
constexpr auto transformSkewY = static_cast<VEKPrintTransformType>(6);

// What new records have.
constexpr auto defaultLineType = static_cast<VEKPrintLineAttribute>(0);
constexpr auto defaultLineStyle = static_cast<VEKPrintLineAttribute>(8);
constexpr auto defaultLineCap = static_cast<VEKPrintLineAttribute>(10);
constexpr auto defaultLineJoin = static_cast<VEKPrintLineAttribute>(13);
constexpr auto defaultTextWeight = static_cast<VEKPrintTextAttribute>(25);
constexpr auto defaultTextAnchor = static_cast<VEKPrintTextAttribute>(29);
constexpr auto defaultMarkerStyle = static_cast<VEKPrintMarkerAttribute>(0);

} // namespace vekprt

#endif
