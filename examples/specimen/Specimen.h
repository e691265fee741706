// The specimen sheet: one A3 page with a cell for each element class and each visible attribute.
#ifndef Specimen_H
#define Specimen_H

#include <memory>
#include <string>
#include <vector>

#include "VEKFont.h"
#include "VEKPrtModel.h"
#include "VEKRef.h"

/// A model of one page, and the fonts that its texts borrow: keep both until the page is drawn.
struct Specimen {
    std::unique_ptr<VEKFont> sans = std::make_unique<VEKFont>("DejaVu Sans, sans-serif");
    std::unique_ptr<VEKFont> serif = std::make_unique<VEKFont>("DejaVu Serif, serif");
    std::unique_ptr<VEKFont> mono = std::make_unique<VEKFont>("DejaVu Sans Mono, monospace");
    vekprt::VEKRef<VEKPrtModel> model = vekprt::Make<VEKPrtModel>();
};

/// The whole sheet.
Specimen BuildSpecimen();

/// The names of the cells, row by row; on the sheet they are the identifiers of groups.
std::vector<std::string> SpecimenCells();

/// One cell as a page of its own; throws std::out_of_range when there is no cell \p iName.
Specimen BuildSpecimenCell(const std::string& iName);

#endif
