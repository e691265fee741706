// The specimen sheet: one A3 page with a cell for each element class and each visible attribute.
#ifndef Specimen_H
#define Specimen_H

#include <memory>

#include "VEKFont.h"
#include "VEKPrtModel.h"
#include "VEKRef.h"

using vekprt::VEKRef;

/// A model of one page, and the fonts that its texts borrow: keep both until the page is plotted.
struct Specimen {
    std::unique_ptr<VEKFont> sans;
    std::unique_ptr<VEKFont> serif;
    std::unique_ptr<VEKFont> mono;
    VEKRef<VEKPrtModel> model;
};

Specimen BuildSpecimen();

#endif
