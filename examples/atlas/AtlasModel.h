// Builds the pages of the atlas as a drawing model.
#ifndef AtlasModel_H
#define AtlasModel_H

#include <string>
#include <vector>

#include "TopoJson.h"
#include "VEKFont.h"
#include "VEKPrtModel.h"
#include "VEKRef.h"

/// The drawing and what it borrows.
///
/// Text attributes only borrow their fonts, so keep the atlas, and do not move it, until its model and every
/// duplicate made of a page have been plotted.
class Atlas {
public:
    /// One page per map: the world first, then its regions.
    explicit Atlas(const Topology& iTopology);
    Atlas(const Atlas&) = delete;
    Atlas& operator=(const Atlas&) = delete;

    const VEKPrtModel& Model() const { return *_model; }

    /// A file name without extension for each page of the model, in order.
    const std::vector<std::string>& PageNames() const { return _pageNames; }

private:
    VEKFont _titleFont;
    VEKFont _labelFont;
    VEKRef<VEKPrtModel> _model;
    std::vector<std::string> _pageNames;
};

#endif
