#include "Labels.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <utility>

namespace {

constexpr double cellSize = 0.5;       // millimetres
constexpr double longestLeader = 14.0; // millimetres
constexpr double lineHeight = 1.2;     // in font sizes
constexpr double air = 0.4;            // in font sizes, around a name in its area
// Square millimetres: smaller areas rather go without a name.
constexpr double leastSizeWithLeader = 14.0;
constexpr double leastSizeFarAcross = 25.0;
// How many cells are looked at, in pages, before the areas that are left go without a name.
constexpr std::size_t mostWork = 100;

// Owners of cells that belong to no area, which is its number.
constexpr int sea = -1;
constexpr int blocked = -2; // by a name, or beyond the rim

int CellOf(double iCoordinate) { return static_cast<int>(std::floor(iCoordinate / cellSize)); }
// The first cell whose middle is not before the coordinate.
int MiddleFrom(double iCoordinate) { return static_cast<int>(std::ceil(iCoordinate / cellSize - 0.5)); }

// A rectangle of cells; right and top are the first outside.
struct Cells {
    int left = 0, bottom = 0, right = 0, top = 0;

    std::size_t Count() const {
        return static_cast<std::size_t>(right - left) * static_cast<std::size_t>(top - bottom);
    }
    Box Bounds() const { return {left * cellSize, bottom * cellSize, right * cellSize, top * cellSize}; }
};

// A number for each cell of a rectangle.
class Table {
public:
    Table(const Cells& iCells, int iValue) : cells(iCells), _values(iCells.Count(), iValue) {}
    long long& At(int iColumn, int iRow) { return _values[Index(iColumn, iRow)]; }
    long long At(int iColumn, int iRow) const { return _values[Index(iColumn, iRow)]; }
    Cells Touched(const Box& iBox) const {
        return {std::clamp(CellOf(iBox.minX), cells.left, cells.right),
                std::clamp(CellOf(iBox.minY), cells.bottom, cells.top),
                std::clamp(CellOf(iBox.maxX) + 1, cells.left, cells.right),
                std::clamp(CellOf(iBox.maxY) + 1, cells.bottom, cells.top)};
    }

    const Cells cells;

private:
    std::size_t Index(int iColumn, int iRow) const {
        return Cells{cells.left, cells.bottom, cells.right, iRow}.Count() +
               static_cast<std::size_t>(iColumn - cells.left);
    }

    std::vector<long long> _values;
};

// Gives the cells in the rings to an owner, by the even-odd rule.
void Fill(Table& ioOwners, const std::vector<Path>& iRings, int iOwner) {
    const Cells cells = ioOwners.Touched(BoundsOf(iRings));
    // Where an edge passes the middle of a row, outside turns to inside or back.
    Table turns({cells.left, cells.bottom, cells.right + 1, cells.top}, 0);
    for (const Path& ring : iRings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Position& a = ring[i];
            const Position& b = ring[(i + 1) % ring.size()];
            const int end = std::min(MiddleFrom(std::max(a.y, b.y)), cells.top);
            for (int row = std::max(MiddleFrom(std::min(a.y, b.y)), cells.bottom); row < end; ++row) {
                const double x = a.x + (b.x - a.x) * ((row + 0.5) * cellSize - a.y) / (b.y - a.y);
                turns.At(std::clamp(MiddleFrom(x), cells.left, cells.right), row) ^= 1;
            }
        }
    }
    for (int row = cells.bottom; row < cells.top; ++row) {
        long long inside = 0;
        for (int column = cells.left; column < cells.right; ++column) {
            inside ^= turns.At(column, row);
            if (inside) ioOwners.At(column, row) = iOwner;
        }
    }
}

// What a cell is worth to a name, by its owner.
struct Worth {
    int own, sea, foreign, blocked;
};

// What rectangles of cells are worth, by a summed-area table.
class Sums {
public:
    Sums(const Table& iOwners, const Cells& iCells, int iOwner, const Worth& iWorth)
        : _sums({iCells.left, iCells.bottom, iCells.right + 1, iCells.top + 1}, 0) {
        for (int row = iCells.bottom; row < iCells.top; ++row) {
            for (int column = iCells.left; column < iCells.right; ++column) {
                const long long owner = iOwners.At(column, row);
                const int worth = owner == iOwner    ? iWorth.own
                                  : owner == sea     ? iWorth.sea
                                  : owner == blocked ? iWorth.blocked
                                                     : iWorth.foreign;
                _sums.At(column + 1, row + 1) =
                    worth + _sums.At(column, row + 1) + _sums.At(column + 1, row) - _sums.At(column, row);
            }
        }
    }
    // Calls iUse(cells, worth) for each rectangle of that size, in millimetres.
    template <class Use>
    void ForEach(double iWidth, double iHeight, Use&& iUse) const {
        const int width = static_cast<int>(std::ceil(iWidth / cellSize));
        const int height = static_cast<int>(std::ceil(iHeight / cellSize));
        for (int bottom = _sums.cells.bottom, top = bottom + height; top < _sums.cells.top; ++bottom, ++top) {
            for (int left = _sums.cells.left, right = left + width; right < _sums.cells.right;
                 ++left, ++right)
                iUse(Cells{left, bottom, right, top}, _sums.At(right, top) - _sums.At(left, top) -
                                                          _sums.At(right, bottom) + _sums.At(left, bottom));
        }
    }
    // The rectangle that is worth most, as near to the middle as can be, and what each of its cells is worth;
    // below all else where none fits.
    double Best(double iWidth, double iHeight, Cells& oCells) const {
        const Cells& all = _sums.cells;
        auto best = std::pair(std::numeric_limits<long long>::min() / 2, 0);
        ForEach(iWidth, iHeight, [&](const Cells& iCells, long long iWorth) {
            const int offset = std::abs(iCells.left + iCells.right - all.left - all.right) +
                               std::abs(iCells.bottom + iCells.top - all.bottom - all.top);
            if (std::pair(iWorth, -offset) <= best) return;
            best = {iWorth, -offset};
            oCells = iCells;
        });
        return static_cast<double>(best.first) / std::max(1.0, static_cast<double>(oCells.Count()));
    }

private:
    Table _sums;
};

// A name in one line or two, at font size 1.
struct Wording {
    std::vector<std::string> lines;
    double width = 0.0;
    double height = 0.0;

    explicit Wording(std::vector<std::string> iLines) : lines(std::move(iLines)) {
        for (const std::string& line : lines)
            width = std::max(width, TextWidth(line));
        height = 1.0 + lineHeight * static_cast<double>(lines.size() - 1);
    }
};

// In one line, and in two by the blank that makes them shortest.
std::vector<Wording> WordingsOf(const std::string& iName) {
    std::vector<Wording> wordings{Wording({iName})};
    for (std::size_t i = iName.find(' '); i != std::string::npos; i = iName.find(' ', i + 1)) {
        constexpr std::size_t shortest = 3;
        if (i < shortest || iName.size() - i <= shortest) continue;
        Wording wording({iName.substr(0, i), iName.substr(i + 1)});
        if (wordings.size() == 2 && wording.width >= wordings[1].width) continue;
        wordings.resize(1, wording);
        wordings.push_back(wording);
    }
    return wordings;
}

class Placer {
public:
    Placer(const Path& iOutline, double iSmallest, double iLargest)
        : _owners({0, 0, CellOf(BoundsOf(iOutline).maxX), CellOf(BoundsOf(iOutline).maxY)}, blocked),
          _smallest(iSmallest), _largest(iLargest) {
        Fill(_owners, {iOutline}, sea);
    }

    std::vector<Label> Place(const std::vector<NamedArea>& iAreas) {
        std::size_t work = 0;
        std::vector<Candidate> candidates, left;
        for (const NamedArea& area : iAreas) {
            const Cells cells = _owners.Touched(BoundsOf(*area.rings));
            work += cells.Count();
            if (work > mostWork * _owners.cells.Count()) break;
            const int owner = static_cast<int>(candidates.size());
            Fill(_owners, *area.rings, owner);
            candidates.push_back({owner, cells, WordingsOf(*area.name), area.size});
        }
        // Names that have their place only in the area come before those that can give way.
        for (const Candidate& candidate : candidates)
            if (!Set(Inside(candidate))) left.push_back(candidate);
        constexpr double good = 85.0, readable = 40.0;
        for (const Candidate& candidate : left) {
            if (Set(Across(candidate, good))) continue;
            if (candidate.size >= leastSizeWithLeader && Set(Beside(candidate))) continue;
            if (candidate.size >= leastSizeFarAcross) Set(Across(candidate, readable));
        }
        return std::move(_labels);
    }

private:
    struct Candidate {
        int owner;
        Cells cells;
        std::vector<Wording> wordings;
        double size;
    };
    struct Choice {
        const Wording* wording = nullptr; // when there is no place
        Cells cells;
        double size = 0.0;
        Path leader;
    };

    // The largest size, from iSmallest on, at which a rectangle lies in the area; 0 when there is none.
    static double LargestInside(const Sums& iSums, double iWidth, double iHeight, double iSmallest,
                                Cells& oCells) {
        double size = 0.0;
        for (double next = iSmallest, step = 2.0; step > 1.02; next = size * step) {
            Cells cells;
            if (iSums.Best(iWidth * next, iHeight * next, cells) >= 1.0) {
                oCells = cells;
                size = next;
            } else if (size == 0.0) {
                return 0.0;
            } else {
                step = std::sqrt(step);
            }
        }
        return size;
    }

    Choice Inside(const Candidate& iCandidate) const {
        const Sums sums(_owners, iCandidate.cells, iCandidate.owner, {1, 0, 0, 0});
        Choice choice;
        for (const Wording& wording : iCandidate.wordings) {
            Cells cells;
            const double room =
                LargestInside(sums, wording.width + air, wording.height + air, _smallest, cells);
            // A second line is for letters that gain by it; none fill all the room.
            constexpr double gain = 1.2, comfortable = 0.85;
            const double size = std::clamp(comfortable * room, _smallest, _largest);
            if (room > 0.0 && size >= gain * choice.size) choice = {&wording, cells, size, {}};
        }
        return choice;
    }

    // Over the sea and a little of the neighbours' land, as far as the place is worth iLeast.
    Choice Across(const Candidate& iCandidate, double iLeast) const {
        const Cells around = _owners.Touched(iCandidate.cells.Bounds().Grown(4.0 * _smallest));
        const Sums sums(_owners, around, iCandidate.owner, {100, 40, -60, -100'000});
        Choice choice;
        for (const Wording& wording : iCandidate.wordings) {
            Cells cells;
            const double worth = sums.Best(wording.width * _smallest, wording.height * _smallest, cells);
            if (worth < iLeast) continue;
            iLeast = worth;
            choice = {&wording, cells, _smallest, {}};
        }
        return choice;
    }

    // On the sea, with the shortest line to the middle of the area.
    Choice Beside(const Candidate& iCandidate) {
        const Sums own(_owners, iCandidate.cells, iCandidate.owner, {1, 0, 0, 0});
        Cells middle;
        Choice choice;
        if (LargestInside(own, 1.0, 1.0, cellSize, middle) == 0.0) return choice;
        const Position from = middle.Bounds().Centre();
        const Cells around = _owners.Touched(middle.Bounds().Grown(2.0 * longestLeader));
        const Sums sums(_owners, around, iCandidate.owner, {0, 1, 0, 0});
        double shortest = longestLeader;
        for (const Wording& wording : iCandidate.wordings) {
            const auto use = [&](const Cells& iCells, long long iWorth) {
                if (iWorth < static_cast<long long>(iCells.Count())) return;
                const Box box = iCells.Bounds().Grown(-air / 2.0 * _smallest);
                const Position to{std::clamp(from.x, box.minX, box.maxX),
                                  std::clamp(from.y, box.minY, box.maxY)};
                const double length = std::hypot(to.x - from.x, to.y - from.y);
                if (length >= shortest) return;
                // Past names and other leaders, and not across other areas.
                bool isFree = true;
                ForEachAlong(from, to, [&](long long iOwner) {
                    isFree = isFree && (iOwner == iCandidate.owner || iOwner == sea);
                });
                if (!isFree) return;
                shortest = length;
                choice = {&wording, iCells, _smallest, {from, to}};
            };
            sums.ForEach((wording.width + air) * _smallest, (wording.height + air) * _smallest, use);
        }
        return choice;
    }

    // Calls iUse(owner) for the cells along a line.
    template <class Use>
    void ForEachAlong(const Position& iFrom, const Position& iTo, Use&& iUse) {
        const int steps = static_cast<int>(std::hypot(iTo.x - iFrom.x, iTo.y - iFrom.y) / cellSize) + 1;
        for (int i = 0; i < steps; ++i)
            iUse(_owners.At(CellOf(iFrom.x + (iTo.x - iFrom.x) * i / steps),
                            CellOf(iFrom.y + (iTo.y - iFrom.y) * i / steps)));
    }

    bool Set(const Choice& iChoice) {
        if (!iChoice.wording) return false;
        const Wording& wording = *iChoice.wording;
        const double size = iChoice.size;
        const Position centre = iChoice.cells.Bounds().Centre();
        Label label{{}, size, iChoice.leader};
        // The middle of the capitals is about so far above the baseline.
        double y = centre.y + (wording.height - 1.0) * size / 2.0 - 0.36 * size;
        for (const std::string& line : wording.lines) {
            label.lines.push_back({line, {centre.x, y}});
            y -= lineHeight * size;
        }
        _labels.push_back(std::move(label));
        const double dx = wording.width * size / 2.0;
        const double dy = wording.height * size / 2.0;
        const Cells cells = _owners.Touched({centre.x - dx, centre.y - dy, centre.x + dx, centre.y + dy});
        for (int row = cells.bottom; row < cells.top; ++row)
            for (int column = cells.left; column < cells.right; ++column)
                _owners.At(column, row) = blocked;
        if (!iChoice.leader.empty())
            ForEachAlong(iChoice.leader[0], iChoice.leader[1], [](long long& oOwner) { oOwner = blocked; });
        return true;
    }

    Table _owners;
    const double _smallest;
    const double _largest;
    std::vector<Label> _labels;
};

} // namespace

double TextWidth(const std::string& iText) {
    double width = 0.0;
    for (const char c : iText) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 && byte < 0xC0) continue; // not the first byte of a character
        // Beyond the alphabets, characters may fill a square.
        const double letter = byte >= 0xE0 ? 1.0 : c >= 'A' && c <= 'Z' ? 0.79 : 0.62;
        width += std::strchr(" .,'ijlIft-", c) ? 0.36 : std::strchr("mwMW", c) ? 0.98 : letter;
    }
    return width;
}

std::vector<Label> PlaceLabels(std::vector<NamedArea> iAreas, const Path& iOutline, double iSmallest,
                               double iLargest) {
    std::stable_sort(iAreas.begin(), iAreas.end(), [](const NamedArea& iLeft, const NamedArea& iRight) {
        return iLeft.size > iRight.size;
    });
    return Placer(iOutline, iSmallest, iLargest).Place(iAreas);
}
