#include <array>

#include "TestSupport.h"

namespace {

int Add(VEKPrtColourTable& ioTable, int iRed) {
    unsigned index = 0;
    return ioTable.AddColour(static_cast<unsigned char>(iRed), 2, 3, index);
}

// The components side by side; -1 outside the table.
int ColourAt(const VEKPrtColourTable& iTable, unsigned iIndex) {
    unsigned char red = 77, green = 77, blue = 77;
    const int status = iTable.GetColour(iIndex, red, green, blue);
    const int colour = red * 65536 + green * 256 + blue;
    EXPECT_EQ(status, colour != 0x4D4D4D ? 1 : -1) << "outputs are written on success only";
    return status == 1 ? colour : -1;
}
// The reds of colours which Add has added.
std::vector<int> RedsOf(const VEKPrtColourTable* iTable) {
    int count = -1;
    std::vector<int> reds;
    if (iTable && iTable->GetColourCount(count) != 1) count = -1;
    for (int i = 0; i < count; ++i) {
        reds.push_back(ColourAt(*iTable, static_cast<unsigned>(i)) >> 16);
        EXPECT_EQ(ColourAt(*iTable, static_cast<unsigned>(i)) % 65536, 0x0203) << i;
    }
    return reds;
}
using Reds = std::vector<int>;

VEKPrtColourTable* TableOf(VEKPrtImageElt& ioImage) {
    VEKPrtColourTable* table = nullptr;
    ioImage.GetColourTable(table);
    return table;
}

VEKPixelImage* PixelsOf(const VEKPrtBitmapImageElt& iBitmap) {
    VEKPixelImage* image = nullptr;
    iBitmap.GetPixelImage(image);
    return image;
}

} // namespace

TEST(ColourTable, AppendsAndFindsTheLowest) {
    VEKPrtColourTable table;
    unsigned index = 77;
    const auto found = [&](int iRed, int iGreen, int iBlue) {
        index = 77;
        const int status =
            table.GetColourIndex(index, static_cast<unsigned char>(iRed), static_cast<unsigned char>(iGreen),
                                 static_cast<unsigned char>(iBlue));
        EXPECT_EQ(status, index == 77 ? -1 : 1);
        return status == 1 ? static_cast<int>(index) : -1;
    };
    EXPECT_EQ(ColourAt(table, 0), -1);
    EXPECT_EQ(found(1, 2, 3), -1);
    EXPECT_EQ(table.ModifyColour(0, 1, 2, 3), -1);
    EXPECT_EQ(table.AddColour(1, 2, 3, index), 1);
    EXPECT_EQ(table.AddColour(1, 2, 3, index), 1);
    EXPECT_EQ(index, 1U);
    EXPECT_EQ(found(1, 2, 3), 0);
    EXPECT_EQ(table.ModifyColour(0, 1, 2, 4), 1);
    EXPECT_EQ(found(1, 2, 3), 1);
    EXPECT_EQ(table.ModifyColour(1, 4, 5, 6), 1);
    EXPECT_EQ(ColourAt(table, 1), 0x040506);
    EXPECT_EQ(ColourAt(table, 2), -1);
    EXPECT_EQ(table.ModifyColour(2, 0, 0, 0), -1);
    EXPECT_EQ(std::tuple(found(9, 5, 6), found(4, 9, 6), found(4, 5, 9)), std::tuple(-1, -1, -1))
        << "two components are not enough";
}

TEST(ColourTable, CopiesAreIndependent) {
    VEKPrtColourTable table, assigned;
    assigned = table;
    const VEKPrtColourTable none(table);
    EXPECT_EQ(RedsOf(&none), Reds());
    Add(table, 1);
    const VEKPrtColourTable copy(table);
    Add(assigned, 9);
    assigned = table;
    assigned = *&assigned;
    table.ModifyColour(0, 5, 5, 5);
    EXPECT_EQ(RedsOf(&copy), Reds{1});
    EXPECT_EQ(RedsOf(&assigned), Reds{1});
    const long blocks = LiveBlocks();
    assigned = VEKPrtColourTable();
    EXPECT_EQ(LiveBlocks(), blocks - 3);
    EXPECT_EQ(RedsOf(&assigned), Reds());
}

TEST(ColourTable, KeepsItsRaisedCapacityWhenItCannotGrow) {
    for (int nth = 0; nth < 3; ++nth) {
        const DemandedLeak leak(0, 3L * nth);
        VEKPrtColourTable table;
        const auto allocationsOf = [&](int iFrom, int iTo) {
            const long before = Allocations();
            for (int i = iFrom; i < iTo; ++i)
                EXPECT_EQ(Add(table, i % 256), 1) << i;
            return Allocations() - before;
        };
        const auto expectFailure = [&] {
            const long blocks = LiveBlocks();
            WithFault(nth, [&] { EXPECT_EQ(Add(table, 0), -1); });
            EXPECT_EQ(LiveBlocks(), blocks + nth) << "arrays that came before the failing one are not freed";
        };
        EXPECT_EQ(allocationsOf(0, 255), 3) << "arrays of 256 entries, one of which stays free";
        expectFailure();
        EXPECT_EQ(allocationsOf(255, 256), 0) << "the free slot of the old arrays";
        expectFailure();
        expectFailure();
        VEKPrtColourTable copy(table);
        EXPECT_EQ(Add(copy, 7), 1);
        EXPECT_EQ(RedsOf(&copy).back(), 7) << "a copy has arrays of the raised capacity";
        EXPECT_EQ(allocationsOf(256, 511), 3) << "arrays of 512 entries";
        EXPECT_EQ(allocationsOf(511, 512), 3) << "then it grows as ever";
        const Reds reds = RedsOf(&table);
        for (std::size_t i = 0; i < 512; ++i)
            ASSERT_EQ(reds.at(i), static_cast<int>(i % 256)) << i;
    }
    VEKPrtColourTable first;
    WithFault(0, [&] { EXPECT_EQ(Add(first, 1), -1); });
    const DemandedLeak leak(0, 3);
    VEKPrtColourTable copy(first);
    EXPECT_EQ(RedsOf(&copy), Reds()) << "arrays were asked for, and lost";
    first = VEKPrtColourTable();
    EXPECT_EQ(Add(first, 1), 1);
}

TEST(Image, OwnsItsColourTable) {
    const auto image = Make<VEKPrtImageElt>(), assigned = Make<VEKPrtImageElt>();
    auto* const table = new VEKPrtColourTable;
    Add(*table, 42);
    image->SetColourTable(table);
    image->SetColourTable(table);
    assigned->SetColourTable(new VEKPrtColourTable);
    *assigned = *image;
    const auto copy = Make<VEKPrtImageElt>(*image);
    image->SetColourTable(new VEKPrtColourTable);
    image->SetColourTable(nullptr);
    EXPECT_EQ(TableOf(*image), nullptr);
    *copy = *std::as_const(copy).Get();
    EXPECT_EQ(RedsOf(TableOf(*copy)), Reds{42});
    WithFault(0, [&] { *copy = *assigned; });
    EXPECT_EQ(TableOf(*copy), nullptr) << "none, not the old one";
    *assigned = *image;
    EXPECT_EQ(TableOf(*assigned), nullptr) << "a source without a table takes the target's away";
}

TEST(BitmapImage, SetParametersKeepsTheOldImage) {
    const auto first = Make<VEKPixelImage>(1, 1), second = Make<VEKPixelImage>(1, 1);
    const auto bitmap = Make<VEKPrtBitmapImageElt>(VEKMathPoint2D(1, 2), 3.0, 4.0, 0.1, first.Get());
    EXPECT_EQ(Count(first), 2UL);
    // The orientation was narrowed when it was constructed, and is never set.
    const auto expect = [&](VEKPixelImage* iImage, const VEKMathPoint2D& iOrigin, double iSize) {
        double orientation = 0, width = 0, height = 0;
        VEKMathPoint2D origin(9, 9);
        VEKPixelImage* image = nullptr;
        bitmap->GetParameters(origin, width, height, orientation, image);
        EXPECT_EQ(std::tuple(image, origin, width * 10 + height, orientation),
                  std::tuple(iImage, iOrigin, iSize, static_cast<double>(0.1F)));
    };
    expect(first.Get(), VEKMathPoint2D(1, 2), 34.0);
    bitmap->SetParameters(VEKMathPoint2D(0, 0), 5.0, 6.0, 45.0, first.Get());
    EXPECT_EQ(Count(first), 2UL) << "one released, one taken";
    bitmap->SetParameters(VEKMathPoint2D(7, 8), 5.0, 6.0, 45.0, second.Get());
    EXPECT_EQ(Count(first), 2UL) << "the old image keeps the reference";
    EXPECT_EQ(Count(second), 2UL);
    expect(second.Get(), VEKMathPoint2D(7, 8), 56.0);
    bitmap->SetParameters(VEKMathPoint2D(0, 0), 0, 0, 0, nullptr);
    EXPECT_EQ(Count(second), 2UL);
    first->Release();
    second->Release();
    bitmap->SetPixelImage(Make<VEKPixelImage>(1, 1).Get());
    bitmap->SetParameters(VEKMathPoint2D(0, 0), 0, 0, 0, PixelsOf(*bitmap));
    bitmap->SetPixelImage(PixelsOf(*bitmap));
    EXPECT_EQ(Count(PixelsOf(*bitmap)), 1UL) << "passed back to itself it survives";
    bitmap->SetPixelImage(nullptr);
}

TEST(BitmapImage, CopiesShareAndDuplicatesCopy) {
    const auto image = Make<VEKPixelImage>(1, 1);
    const auto bitmap = Make<VEKPrtBitmapImageElt>();
    bitmap->SetPixelImage(image.Get());
    bitmap->SetPixelImage(image.Get());
    const auto copy = Make<VEKPrtBitmapImageElt>(*bitmap);
    *copy = *bitmap;
    EXPECT_EQ(Count(image), 3UL);
    const auto duplicate = Duplicated(*bitmap);
    EXPECT_EQ(Count(image), 3UL);
    EXPECT_EQ(Count(PixelsOf(*duplicate)), 1UL);
    VEKRef<VEKPrtBitmapImageElt> sharing;
    WithFault(1, [&] { sharing = Duplicated(*bitmap); });
    EXPECT_EQ(PixelsOf(*sharing), image.Get()) << "an image that cannot be copied stays shared";
    EXPECT_EQ(Count(image), 4UL);
}
