#include "VEKPrtColourTable.h"

#include <limits>

#include "OwnedArray.h"

namespace {

constexpr unsigned int growthStep = 256;

// Moves the iCount components in use to a larger array.
void Replace(unsigned char*& ioHeld, unsigned char* iLarger, unsigned int iCount) {
    std::copy_n(ioHeld, iCount, iLarger);
    delete[] ioHeld;
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
    // By pointer: assignment between two tables without arrays does nothing.  The three arrays are always set
    // and freed together, so testing one is enough, here and below.
    if (_red == iOther._red) return *this;
    vekprt::DeleteArray(_red);
    vekprt::DeleteArray(_green);
    vekprt::DeleteArray(_blue);
    CopyOwn(iOther);
    return *this;
}

// If one of the arrays cannot be allocated, or the source has none, the copy is empty; arrays that were
// allocated are not freed, so callers lose their memory.
void VEKPrtColourTable::CopyOwn(const VEKPrtColourTable& iOther) {
    _capacity = _count = _allocated = 0;
    if (iOther._capacity == 0) return;
    unsigned char* const red = vekprt::NewArray<unsigned char>(iOther._capacity);
    unsigned char* const green = vekprt::NewArray<unsigned char>(iOther._capacity);
    unsigned char* const blue = vekprt::NewArray<unsigned char>(iOther._capacity);
    if (!red || !green || !blue || !iOther._red) return;
    _capacity = _allocated = iOther._capacity;
    _count = iOther._count;
    _red = red;
    _green = green;
    _blue = blue;
    std::copy_n(iOther._red, _count, _red);
    std::copy_n(iOther._green, _count, _green);
    std::copy_n(iOther._blue, _count, _blue);
}

int VEKPrtColourTable::GetColourCount(int& oCount) const {
    oCount = static_cast<int>(_count);
    return 1;
}

// The arrays grow when a single entry is left free; that last one is used only after a growth has failed.
// Then the capacity is larger than the arrays, and the next addition that does not fit allocates it.
int VEKPrtColourTable::AddColour(unsigned char iRed, unsigned char iGreen, unsigned char iBlue,
                                 unsigned int& oIndex) {
    if (_count + 1 >= _capacity) {
        if (_capacity > std::numeric_limits<unsigned int>::max() - growthStep) return -1;
        _capacity += growthStep;
        if (!Reallocate()) return -1;
    }
    if (_count >= _allocated && !Reallocate()) return -1;
    _red[_count] = iRed;
    _green[_count] = iGreen;
    _blue[_count] = iBlue;
    oIndex = _count++;
    return 1;
}

// Allocates arrays of the capacity.  If one cannot be allocated, the old ones stay in use, the capacity stays
// raised, and those allocated before it are not freed, so callers lose their memory.
bool VEKPrtColourTable::Reallocate() {
    unsigned char* const red = vekprt::NewArray<unsigned char>(_capacity);
    if (!red) return false;
    unsigned char* const green = vekprt::NewArray<unsigned char>(_capacity);
    if (!green) return false;
    unsigned char* const blue = vekprt::NewArray<unsigned char>(_capacity);
    if (!blue) return false;
    Replace(_red, red, _count);
    Replace(_green, green, _count);
    Replace(_blue, blue, _count);
    _allocated = _capacity;
    return true;
}

int VEKPrtColourTable::ModifyColour(unsigned int iIndex, unsigned char iRed, unsigned char iGreen,
                                    unsigned char iBlue) {
    if (iIndex >= _count) return -1;
    _red[iIndex] = iRed;
    _green[iIndex] = iGreen;
    _blue[iIndex] = iBlue;
    return 1;
}

int VEKPrtColourTable::GetColourIndex(unsigned int& oIndex, unsigned char iRed, unsigned char iGreen,
                                      unsigned char iBlue) const {
    for (unsigned int i = 0; i < _count; ++i) {
        if (_red[i] != iRed || _green[i] != iGreen || _blue[i] != iBlue) continue;
        oIndex = i;
        return 1;
    }
    return -1;
}

int VEKPrtColourTable::GetColour(unsigned int iIndex, unsigned char& oRed, unsigned char& oGreen,
                                 unsigned char& oBlue) const {
    if (iIndex >= _count) return -1;
    oRed = _red[iIndex];
    oGreen = _green[iIndex];
    oBlue = _blue[iIndex];
    return 1;
}
