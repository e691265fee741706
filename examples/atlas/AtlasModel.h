// Builds the pages of the atlas as a drawing model.
#ifndef AtlasModel_H
#define AtlasModel_H

#include <string>

#include "TopoJson.h"
#include "VEKFont.h"
#include "VEKPrtModel.h"
#include "VEKRef.h"

/// The drawing and what it borrows.
///
/// Text attributes only borrow their fonts: keep the atlas, and do not move it, until its model and every
/// duplicate made of a page have been drawn.
class Atlas {
public:
    /// The world and the continents; or, for countries that lie close together, one page that is fitted to
    /// them, whose title is the name of the only country, or else \p iTitle.
    ///
    /// \p iCredit is a text for the foot of each page.  Throws std::runtime_error when it is too long for
    /// that, or when the outlines are too long for all the pages.
    explicit Atlas(const Topology& iTopology, const std::string& iTitle = "Map",
                   const std::string& iCredit = {}, bool iIsPdf = false);
    Atlas(const Atlas&) = delete;
    Atlas& operator=(const Atlas&) = delete;

    /// Links lead to other pages, in a PDF by identifier, else by the names of their SVG files: identifiers
    /// with the extension.
    const VEKPrtModel& Model() const { return *_model; }

private:
    VEKFont _titleFont{"DejaVu Serif, serif"};
    VEKFont _labelFont{"DejaVu Sans, sans-serif"};
    vekprt::VEKRef<VEKPrtModel> _model = vekprt::Make<VEKPrtModel>();
};

#endif
