#include <iostream>

#include "SvgWriter.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtImageElt.h"
#include "VEKPrtLineElt.h"
#include "VEKPrtModel.h"
#include "VEKRef.h"

using namespace vekprt;

int main() {
    const auto model = VEKRef<VEKPrtModel>::Adopt(new VEKPrtModel);
    const auto page = VEKRef<VEKPrtImageElt>::Adopt(new VEKPrtImageElt);
    page->SetSize(100.0, 50.0); // millimetres, by default
    auto* const colours = new VEKPrtColourTable;
    page->SetColourTable(colours); // the page takes the table over
    unsigned red = 0;
    colours->AddColour(200, 30, 40, red);

    const auto line = VEKRef<VEKPrtLineElt>::Adopt(new VEKPrtLineElt({10.0, 10.0}, {90.0, 40.0}));
    VEKPrtStrokeAttributes stroke;
    stroke.SetStrokeColourIndex(red);
    line->SetStrokeAttributes(stroke); // a copy
    page->AddChild(line.Get());        // with a reference of the page's own
    model->AddImage(page.Get());
    return WriteSvg(*model, 1, std::cout) ? 0 : 1;
}
