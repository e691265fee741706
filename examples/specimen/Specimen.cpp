#include "Specimen.h"

#include <stdexcept>

#include "Cell.h"
#include "VEKPrtColourTable.h"

namespace {

// A3, landscape, in millimetres: a frame around a grid of cells, the title block in the last row.
constexpr double sheetWidth = 420, sheetHeight = 297;
constexpr double frame = 10;
constexpr int columns = 8, rows = 5;
constexpr double cellHeight = (sheetHeight - 2 * frame) / rows;

// In the order of the indices.
constexpr unsigned char g_colours[][3] = {{0x1B, 0x2A, 0x41}, {0x8D, 0x99, 0xAE}, {0xE3, 0xE9, 0xF0},
                                          {0xD1, 0x49, 0x5B}, {0x1C, 0x8C, 0x86}, {0xED, 0xAE, 0x49},
                                          {0x6F, 0xA3, 0xCC}, {0xFD, 0xFC, 0xF8}};

VEKPrtImageElt& AddPage(const Specimen& iSpecimen, double iWidth, double iHeight, const char* iTitle) {
    const auto page =
        Make<VEKPrtImageElt>(Point(0, 0), iWidth, iHeight, VEKPrtImageMillimetre, VEKMath2x2Matrix());
    page->SetTitle(iTitle);
    auto* const table = new VEKPrtColourTable;
    page->SetColourTable(table);
    unsigned index = 0;
    for (const auto& colour : g_colours)
        table->AddColour(colour[0], colour[1], colour[2], index);
    iSpecimen.model->AddImage(page.Get());
    return *page;
}

Cell AddCell(VEKPrtImageElt& ioPage, const Specimen& iFonts, const char* iID, double iX, double iY) {
    const auto group = Make<VEKPrtGroupElt>();
    group->SetID(iID);
    if (iX != 0 || iY != 0) group->SetTransformAttributes(Place(iX, iY));
    ioPage.AddChild(group.Get());
    return Cell(iFonts, *group);
}

void DrawBorder(const Cell& iCell) {
    iCell.Add(Box(0, 0, sheetWidth, sheetHeight), Fill(paper), VEKPrtDrawInterior);
    iCell.Add(Box(frame, frame, sheetWidth - frame, sheetHeight - frame), Stroke(ink, 0.7),
              VEKPrtDrawOutline);
}

void DrawContent(const Cell& iCell, const CellContent& iContent) {
    iCell.group.SetTitle(iContent.heading);
    iCell.Add(Box(0, 0, Cell::width, cellHeight), Stroke(grey, 0.18), VEKPrtDrawOutline);
    iCell.Text({3, cellHeight - 5, iContent.heading, left, 3.2}, &TextAttributes::SetWeight,
               VEKPrintTextWeightBold);
    iCell.Text({3, cellHeight - 9, iContent.subject, left, 2.1}, &TextAttributes::SetFont,
               iCell.fonts.mono.get());
    iContent.draw(iCell);
}

void DrawTitleBlock(const Cell& iCell, double iWidth) {
    for (const double y : {14.0, 38.0})
        iCell.Line({0, y}, {iWidth, y}, Stroke(ink, 0.35));
    iCell.Text({5, 43.5, "VEKPrt2DModel", left, 8}, &TextAttributes::SetWeight, VEKPrintTextWeightBold);
    iCell.Texts({{5, 32, "Specimen sheet", left, 4},
                 {5, 27, "Every element class, and every attribute that can be seen,", left, 2.6},
                 {5, 23, "on one page, a VEKPrtImageElt.  Angles are degrees,", left, 2.6},
                 {5, 19, "counter-clockwise; the first of several transforms is outermost.", left, 2.6}});
    iCell.Text({5, 5, "A3, millimetres, y up; " + std::to_string(Cells().size()) + " cells", left, 3.2});
}

} // namespace

Specimen BuildSpecimen() {
    Specimen specimen;
    VEKPrtImageElt& page = AddPage(specimen, sheetWidth, sheetHeight, "VEKPrt2DModel specimen sheet");
    DrawBorder(AddCell(page, specimen, "sheet", 0, 0));
    int cells = 0;
    for (const CellContent& content : Cells()) {
        const double x = frame + cells % columns * Cell::width;
        const int row = cells++ / columns + 1;
        const double y = sheetHeight - frame - row * cellHeight;
        DrawContent(AddCell(page, specimen, content.name, x, y), content);
    }
    const double width = (columns * rows - cells) * Cell::width;
    DrawTitleBlock(AddCell(page, specimen, "title-block", sheetWidth - frame - width, frame), width);
    return specimen;
}

std::vector<std::string> SpecimenCells() {
    std::vector<std::string> names;
    for (const CellContent& content : Cells())
        names.emplace_back(content.name);
    return names;
}

Specimen BuildSpecimenCell(const std::string& iName) {
    for (const CellContent& content : Cells()) {
        if (content.name != iName) continue;
        Specimen specimen;
        VEKPrtImageElt& page = AddPage(specimen, Cell::width, cellHeight, content.heading);
        DrawContent(AddCell(page, specimen, content.name, 0, 0), content);
        return specimen;
    }
    throw std::out_of_range("no cell " + iName);
}
