#include "Specimen.h"

#include <string>

#include "Cell.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtRectangleElt.h"

namespace {

// A3, landscape, in millimetres: a border of zones around a grid of cells, the title block in the last row.
constexpr double sheetWidth = 420, sheetHeight = 297;
constexpr double outer = 5, frame = 10;
constexpr int columns = 8, rows = 5;
constexpr double cellHeight = (sheetHeight - 2 * frame) / rows;

// In the order of the indices.
constexpr unsigned char g_colours[][3] = {{0x1B, 0x2A, 0x41}, {0x8D, 0x99, 0xAE}, {0xE3, 0xE9, 0xF0},
                                          {0xD1, 0x49, 0x5B}, {0x1C, 0x8C, 0x86}, {0xED, 0xAE, 0x49},
                                          {0x6F, 0xA3, 0xCC}, {0xFD, 0xFC, 0xF8}};

// A group at a place of the page, with a cell to draw into it.
Cell AddCell(VEKPrtImageElt& ioPage, const Specimen& iFonts, const char* iID, double iX, double iY) {
    const auto group = Make<VEKPrtGroupElt>();
    group->SetID(iID);
    if (iX != 0 || iY != 0) group->SetTransformAttributes(Place(iX, iY));
    ioPage.AddChild(group.Get());
    return Cell(iFonts, *group);
}

void DrawBorder(const Cell& iCell) {
    const auto box = [&](double iMargin) {
        return Make<VEKPrtRectangleElt>(Point(iMargin, iMargin),
                                        Point(sheetWidth - iMargin, sheetHeight - iMargin));
    };
    iCell.AddPainted(box(0), paper, paper, VEKPrtDrawInterior);
    iCell.AddPainted(box(outer), ink, ink, VEKPrtDrawOutline, 0.25);
    iCell.AddPainted(box(frame), ink, ink, VEKPrtDrawOutline, 0.7);
    constexpr double middle = (outer + frame) / 2;
    for (int column = 0; column < columns; ++column) {
        const double x = frame + column * Cell::width;
        for (const double y : {middle, sheetHeight - middle}) {
            iCell.Text(x + Cell::width / 2, y, std::to_string(column + 1), 3, VEKPrintTextAnchorMiddleCentre);
            if (column > 0) iCell.Line(x, y - middle + outer, x, y + middle - outer, ink, 0.25);
        }
    }
    for (int row = 0; row < rows; ++row) {
        const double y = sheetHeight - frame - row * cellHeight;
        const std::string name(1, static_cast<char>('A' + row));
        for (const double x : {middle, sheetWidth - middle}) {
            iCell.Text(x, y - cellHeight / 2, name, 3, VEKPrintTextAnchorMiddleCentre);
            if (row > 0) iCell.Line(x - middle + outer, y, x + middle - outer, y, ink, 0.25);
        }
    }
}

void DrawContent(const Cell& iCell, const CellContent& iContent) {
    iCell.group.SetTitle(iContent.heading);
    iCell.AddPainted(Make<VEKPrtRectangleElt>(Point(0, 0), Point(Cell::width, cellHeight)), grey, paper,
                     VEKPrtDrawOutline, 0.18);
    Retouch(iCell.Text(3, cellHeight - 5, iContent.heading, 3.2), &VEKPrtTextAttributes::SetWeight,
            VEKPrintTextWeightBold);
    Retouch(iCell.Text(3, cellHeight - 9, iContent.name, 2.1), &VEKPrtTextAttributes::SetFont,
            iCell.fonts.mono.get());
    iContent.draw(iCell);
}

void DrawTitleBlock(const Cell& iCell, double iWidth, int iCells) {
    for (const double y : {14.0, 38.0})
        iCell.Line(0, y, iWidth, y, ink, 0.35);
    for (int i = 1; i < 3; ++i)
        iCell.Line(iWidth * i / 3, 0, iWidth * i / 3, 14, ink, 0.35);
    Retouch(iCell.Text(5, 43.5, "VEKPrt2DModel", 8), &VEKPrtTextAttributes::SetWeight,
            VEKPrintTextWeightBold);
    iCell.Text(5, 32, "Specimen sheet", 4);
    iCell.Text(5, 27, "Every element class, and every attribute that can be seen,", 2.6);
    iCell.Text(5, 23, "on one page, a VEKPrtImageElt.  Angles are degrees,", 2.6);
    iCell.Text(5, 19, "counter-clockwise; the first of several transforms is outermost.", 2.6);
    const std::string fields[][2] = {
        {"Format", "A3"}, {"Units", "mm, y up"}, {"Contents", std::to_string(iCells) + " cells"}};
    for (int i = 0; i < 3; ++i) {
        iCell.Text(iWidth * i / 3 + 5, 9.6, fields[i][0], 2);
        iCell.Text(iWidth * i / 3 + 5, 3.6, fields[i][1], 3.2);
    }
}

} // namespace

Specimen BuildSpecimen() {
    Specimen specimen{std::make_unique<VEKFont>("DejaVu Sans, sans-serif"),
                      std::make_unique<VEKFont>("DejaVu Serif, serif"),
                      std::make_unique<VEKFont>("DejaVu Sans Mono, monospace"), Make<VEKPrtModel>()};

    const auto page =
        Make<VEKPrtImageElt>(Point(0, 0), sheetWidth, sheetHeight, VEKPrtImageMillimetre, VEKMath2x2Matrix());
    page->SetTitle("VEKPrt2DModel specimen sheet");
    auto* const table = new VEKPrtColourTable;
    page->SetColourTable(table);
    unsigned index = 0;
    for (const auto& colour : g_colours)
        table->AddColour(colour[0], colour[1], colour[2], index);

    DrawBorder(AddCell(*page, specimen, "sheet", 0, 0));
    int cells = 0;
    for (const CellContent* const list : {g_elementCells, g_attributeCells}) {
        for (const CellContent* content = list; content->draw; ++content, ++cells) {
            const double x = frame + cells % columns * Cell::width;
            const int row = cells / columns;
            const double y = sheetHeight - frame - (row + 1) * cellHeight;
            DrawContent(AddCell(*page, specimen, content->id, x, y), *content);
        }
    }
    const double width = (columns * rows - cells) * Cell::width;
    const Cell block = AddCell(*page, specimen, "title-block", sheetWidth - frame - width, frame);
    DrawTitleBlock(block, width, cells);
    specimen.model->AddImage(page.Get());
    return specimen;
}
