#include "Specimen.h"

#include <string>

#include "Sheet.h"
#include "VEKPrtColourTable.h"
#include "VEKPrtRectangleElt.h"

namespace {

using Point = VEKMathPoint2D;

// A3, landscape, in millimetres: a border of zones around a grid of cells, the title block in the last row.
constexpr double sheetWidth = 420, sheetHeight = 297;
constexpr double outer = 5, frame = 10;
constexpr int columns = 8, rows = 5;
constexpr double cellWidth = Cell::width;
constexpr double cellHeight = (sheetHeight - 2 * frame) / rows;

unsigned AddColour(VEKPrtColourTable& ioTable, unsigned iRgb) {
    unsigned index = 0;
    ioTable.AddColour(static_cast<unsigned char>(iRgb >> 16), static_cast<unsigned char>(iRgb >> 8 & 0xFFU),
                      static_cast<unsigned char>(iRgb & 0xFFU), index);
    return index;
}

VEKPrtTransformAttributes Translation(double iX, double iY) {
    VEKPrtTransformAttributes transform;
    transform.AddTranslation(VEKMathVector2D(iX, iY));
    return transform;
}

void DrawBorder(const Cell& c) {
    c.AddPainted(
        Make<VEKPrtRectangleElt>(Point(outer, outer), Point(sheetWidth - outer, sheetHeight - outer)),
        c.palette.ink, c.palette.ink, VEKPrtDrawOutline, 0.25);
    c.AddPainted(
        Make<VEKPrtRectangleElt>(Point(frame, frame), Point(sheetWidth - frame, sheetHeight - frame)),
        c.palette.ink, c.palette.ink, VEKPrtDrawOutline, 0.7);
    constexpr double middle = (outer + frame) / 2;
    for (int column = 0; column < columns; ++column) {
        const double x = frame + column * cellWidth;
        const std::string name = std::to_string(column + 1);
        for (const double y : {middle, sheetHeight - middle}) {
            c.Text(x + cellWidth / 2, y, name.c_str(), 3, VEKPrintTextAnchorMiddleCentre);
            if (column > 0) c.Line(x, y - middle + outer, x, y + middle - outer, c.palette.ink, 0.25);
        }
    }
    for (int row = 0; row < rows; ++row) {
        const double y = sheetHeight - frame - row * cellHeight;
        const std::string name(1, static_cast<char>('A' + row));
        for (const double x : {middle, sheetWidth - middle}) {
            c.Text(x, y - cellHeight / 2, name.c_str(), 3, VEKPrintTextAnchorMiddleCentre);
            if (row > 0) c.Line(x - middle + outer, y, x + middle - outer, y, c.palette.ink, 0.25);
        }
    }
}

void DrawTitleBlock(const Cell& c, double iWidth, int iCells) {
    const auto bold = [](VEKPrtTextAttributes& ioText) { ioText.SetWeight(VEKPrintTextWeightBold); };
    for (const double y : {14.0, 38.0})
        c.Line(0, y, iWidth, y, c.palette.ink, 0.35);
    for (int i = 1; i < 3; ++i)
        c.Line(iWidth * i / 3, 0, iWidth * i / 3, 14, c.palette.ink, 0.35);
    Cell::Retouch(c.Text(5, 43.5, "VEKPrt2DModel", 8), bold);
    c.Text(5, 32, "Specimen sheet", 4);
    c.Text(5, 27, "Every element class, and every attribute that can be seen,", 2.6);
    c.Text(5, 23, "on one page, a VEKPrtImageElt.  Angles are degrees,", 2.6);
    c.Text(5, 19, "counter-clockwise; the first of several transforms is outermost.", 2.6);
    const std::string count = std::to_string(iCells) + " cells";
    const char* const fields[][2] = {{"Format", "A3"}, {"Units", "mm, y up"}, {"Contents", count.c_str()}};
    for (int i = 0; i < 3; ++i) {
        c.Text(iWidth * i / 3 + 5, 9.6, fields[i][0], 2);
        c.Text(iWidth * i / 3 + 5, 3.6, fields[i][1], 3.2);
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
    const auto colour = [&](unsigned iRgb) { return AddColour(*table, iRgb); };
    Palette palette = {};
    palette.ink = colour(0x1B2A41);
    palette.grey = colour(0x8D99AE);
    palette.faint = colour(0xE3E9F0);
    palette.red = colour(0xD1495B);
    palette.teal = colour(0x1C8C86);
    palette.ochre = colour(0xEDAE49);
    palette.blue = colour(0x6FA3CC);
    palette.paper = colour(0xFDFCF8);

    const auto sheet = Make<VEKPrtGroupElt>();
    sheet->SetID("sheet");
    const Cell border(specimen, palette, *sheet);
    border.AddPainted(Make<VEKPrtRectangleElt>(Point(0, 0), Point(sheetWidth, sheetHeight)), palette.paper,
                      palette.paper, VEKPrtDrawInterior);
    DrawBorder(border);
    page->AddChild(sheet.Get());

    int cells = 0;
    for (const CellContent* const list : {g_elementCells, g_attributeCells}) {
        for (const CellContent* content = list; content->draw; ++content, ++cells) {
            const auto group = Make<VEKPrtGroupElt>();
            group->SetID(content->id);
            group->SetTitle(content->heading);
            const double x = frame + cells % columns * cellWidth;
            const int row = cells / columns;
            const double y = sheetHeight - frame - (row + 1) * cellHeight;
            group->SetTransformAttributes(Translation(x, y));
            const Cell cell(specimen, palette, *group);
            cell.AddPainted(Make<VEKPrtRectangleElt>(Point(0, 0), Point(cellWidth, cellHeight)), palette.grey,
                            palette.paper, VEKPrtDrawOutline, 0.18);
            Cell::Retouch(cell.Text(3, cellHeight - 5, content->heading, 3.2),
                          [](VEKPrtTextAttributes& ioText) { ioText.SetWeight(VEKPrintTextWeightBold); });
            Cell::Retouch(cell.Text(3, cellHeight - 9, content->name, 2.1),
                          [&](VEKPrtTextAttributes& ioText) { ioText.SetFont(specimen.mono.get()); });
            content->draw(cell);
            page->AddChild(group.Get());
        }
    }

    const auto block = Make<VEKPrtGroupElt>();
    block->SetID("title-block");
    const int free = columns * rows - cells;
    const double width = free * cellWidth;
    block->SetTransformAttributes(Translation(sheetWidth - frame - width, frame));
    DrawTitleBlock(Cell(specimen, palette, *block), width, cells);
    page->AddChild(block.Get());

    specimen.model->AddImage(page.Get());
    return specimen;
}
