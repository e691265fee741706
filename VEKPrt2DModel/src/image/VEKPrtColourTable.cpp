#include "VEKPrtColourTable.h"

#include <limits>

#include "OwnedArray.h"

namespace {

constexpr unsigned int growthStep = 256;

void ReplaceComponent(unsigned char*& ioHeld, unsigned char* iLarger, unsigned int iCount) {
    vekprt::CopyArray(iLarger, ioHeld, iCount);
    vekprt::DeleteArray(ioHeld);
    ioHeld = iLarger;
}

} // namespace

VEKPrtColourTable::VEKPrtColourTable() = default;

VEKPrtColourTable::VEKPrtColourTable(const VEKPrtColourTable& iOther) : VEKPrtColourTable() {
    if (&iOther != this) CopyOwn(iOther);
}

VEKPrtColourTable::~VEKPrtColourTable() {
    vekprt::DeleteArray(_red);
    vekprt::DeleteArray(_green);
    vekprt::DeleteArray(_blue);
}

VEKPrtColourTable& VEKPrtColourTable::operator=(const VEKPrtColourTable& iOther) {
    // By pointer: two tables without arrays count as one and the same.
    if (&iOther == this || _red == iOther._red || _green == iOther._green || _blue == iOther._blue)
        return *this;
    vekprt::DeleteArray(_red);
    vekprt::DeleteArray(_green);
    vekprt::DeleteArray(_blue);
    CopyOwn(iOther);
    return *this;
}

// Where one of the arrays cannot be had, or the source has none, the copy is empty; arrays that were got are
// not freed (ColourTableFailure.CopyIsEmpty).
void VEKPrtColourTable::CopyOwn(const VEKPrtColourTable& iOther) {
    _capacity = _count = _allocated = 0;
    if (iOther._capacity == 0) return;
    unsigned char* const red = vekprt::NewArray<unsigned char>(iOther._capacity);
    unsigned char* const green = vekprt::NewArray<unsigned char>(iOther._capacity);
    unsigned char* const blue = vekprt::NewArray<unsigned char>(iOther._capacity);
    if (!red || !green || !blue || !iOther._red || !iOther._green || !iOther._blue ||
        iOther._capacity < iOther._count)
        return;
    _capacity = iOther._capacity;
    _count = iOther._count;
    _allocated = _capacity;
    vekprt::CopyArray(_red = red, iOther._red, _count);
    vekprt::CopyArray(_green = green, iOther._green, _count);
    vekprt::CopyArray(_blue = blue, iOther._blue, _count);
}

int VEKPrtColourTable::GetColourCount(int& oCount) const {
    oCount = static_cast<int>(_count);
    return 1;
}

int VEKPrtColourTable::AddColour(unsigned char iRed, unsigned char iGreen, unsigned char iBlue,
                                 unsigned int& oIndex) {
    if (!(_count + 1 < _capacity) && Grow() < 0) return -1;
    // After a failed growth the capacity promises more than the arrays hold.
    if (_count >= _allocated) return -1;
    _red[_count] = iRed;
    _green[_count] = iGreen;
    _blue[_count] = iBlue;
    oIndex = _count++;
    return 1;
}

// On failure the capacity stays raised and arrays that were got before are not freed; the old ones stay in
// use (ColourTableFailure.CapacityStaysRaised).
int VEKPrtColourTable::Grow() {
    if (_capacity > std::numeric_limits<unsigned int>::max() - growthStep) return -1;
    _capacity += growthStep;
    unsigned char* const red = vekprt::NewArray<unsigned char>(_capacity);
    if (!red) return -1;
    unsigned char* const green = vekprt::NewArray<unsigned char>(_capacity);
    if (!green) return -1;
    unsigned char* const blue = vekprt::NewArray<unsigned char>(_capacity);
    if (!blue) return -1;
    ReplaceComponent(_red, red, _count);
    ReplaceComponent(_green, green, _count);
    ReplaceComponent(_blue, blue, _count);
    _allocated = _capacity;
    return 1;
}

bool VEKPrtColourTable::HasColour(unsigned int iIndex) const {
    return iIndex < _count && _red && _green && _blue;
}

int VEKPrtColourTable::ModifyColour(unsigned int iIndex, unsigned char iRed, unsigned char iGreen,
                                    unsigned char iBlue) {
    if (!HasColour(iIndex)) return -1;
    _red[iIndex] = iRed;
    _green[iIndex] = iGreen;
    _blue[iIndex] = iBlue;
    return 1;
}

int VEKPrtColourTable::GetColourIndex(unsigned int& oIndex, unsigned char iRed, unsigned char iGreen,
                                      unsigned char iBlue) const {
    for (unsigned int i = 0; HasColour(i); ++i) {
        if (_red[i] != iRed || _green[i] != iGreen || _blue[i] != iBlue) continue;
        oIndex = i;
        return 1;
    }
    return -1;
}

int VEKPrtColourTable::GetColour(unsigned int iIndex, unsigned char& oRed, unsigned char& oGreen,
                                 unsigned char& oBlue) const {
    if (!HasColour(iIndex)) return -1;
    oRed = _red[iIndex];
    oGreen = _green[iIndex];
    oBlue = _blue[iIndex];
    return 1;
}
