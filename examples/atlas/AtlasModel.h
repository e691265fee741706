// Builds the pages of the atlas as a drawing model.
#ifndef AtlasModel_H
#define AtlasModel_H

#include <string>

#include "TopoJson.h"
#include "VEKFont.h"
#include "VEKPrtModel.h"
#include "VEKRef.h"

using vekprt::VEKRef;

/// The drawing and what it borrows.
///
/// Text attributes only borrow their fonts, so keep the atlas, and do not move it, until its model and every
/// duplicate made of a page have been plotted.
class Atlas {
public:
    /// The world and those of its regions that show something; or, for countries that lie close together, one
    /// page that is fitted to them.  Its title is the name of the only country, or else \p iTitle.  It may
    /// leave out what lies far from the largest part of its country.
    ///
    /// \p iCredit stands at the foot of each page.  Throws std::runtime_error when it is too long for that,
    /// or the outlines for all the pages.
    explicit Atlas(const Topology& iTopology, const std::string& iTitle = "Map",
                   const std::string& iCredit = {});
    Atlas(const Atlas&) = delete;
    Atlas& operator=(const Atlas&) = delete;

    /// The identifier of a page is what links call its file, without extension.
    const VEKPrtModel& Model() const { return *_model; }

private:
    VEKFont _titleFont;
    VEKFont _labelFont;
    VEKRef<VEKPrtModel> _model;
};

#endif
