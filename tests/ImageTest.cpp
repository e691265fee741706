#include "TestSupport.h"

namespace {

int CountOf(const VEKPrtColourTable& iTable) {
    int count = -1;
    EXPECT_EQ(iTable.GetColourCount(count), 1);
    return count;
}

int Add(VEKPrtColourTable& ioTable, int iRed) {
    unsigned index = 0;
    return ioTable.AddColour(static_cast<unsigned char>(iRed), 2, 3, index);
}

int RedAt(const VEKPrtColourTable& iTable, unsigned iIndex) {
    unsigned char red = 0, green = 0, blue = 0;
    return iTable.GetColour(iIndex, red, green, blue) == 1 ? red : -1;
}

VEKPrtColourTable* TableOf(VEKPrtImageElt& ioImage) {
    VEKPrtColourTable* table = nullptr;
    ioImage.GetColourTable(table);
    return table;
}

} // namespace

TEST(ColourTable, AppendsAndFindsTheLowest) {
    VEKPrtColourTable table;
    unsigned index = 77;
    EXPECT_EQ(CountOf(table), 0);
    EXPECT_EQ(RedAt(table, 0), -1);
    EXPECT_EQ(table.GetColourIndex(index, 1, 2, 3), -1);
    EXPECT_EQ(table.ModifyColour(0, 1, 2, 3), -1);
    EXPECT_EQ(index, 77U);
    EXPECT_EQ(table.AddColour(1, 2, 3, index), 1);
    EXPECT_EQ(table.AddColour(1, 2, 3, index), 1);
    EXPECT_EQ(index, 1U);
    EXPECT_EQ(table.GetColourIndex(index, 1, 2, 3), 1);
    EXPECT_EQ(index, 0U);
    EXPECT_EQ(table.ModifyColour(0, 1, 2, 4), 1);
    EXPECT_EQ(table.GetColourIndex(index, 1, 2, 3), 1);
    EXPECT_EQ(index, 1U);
    EXPECT_EQ(table.ModifyColour(2, 0, 0, 0), -1);
    EXPECT_EQ(table.GetColourIndex(index, 3, 2, 1), -1);
}

TEST(ColourTable, GrowsBy256WithOneSlotFree) {
    VEKPrtColourTable table;
    for (int i = 0; i < 600; ++i) {
        const long before = Allocations();
        ASSERT_EQ(Add(table, i % 256), 1);
        const bool grows = i == 0 || i == 255 || i == 511;
        EXPECT_EQ(Allocations() - before, grows ? 3 : 0) << "colour " << i;
    }
    for (unsigned i = 0; i < 600; ++i)
        ASSERT_EQ(RedAt(table, i), static_cast<int>(i % 256)) << i;
}

TEST(ColourTable, CopiesAreIndependent) {
    VEKPrtColourTable table, assigned;
    assigned = table;
    EXPECT_EQ(CountOf(VEKPrtColourTable(table)), 0);
    Add(table, 1);
    const VEKPrtColourTable copy(table);
    Add(assigned, 9);
    assigned = table;
    assigned = *&assigned;
    table.ModifyColour(0, 5, 5, 5);
    EXPECT_EQ(RedAt(copy, 0), 1);
    EXPECT_EQ(RedAt(assigned, 0), 1);
    assigned = VEKPrtColourTable();
    EXPECT_EQ(CountOf(assigned), 0);
}

TEST(ColourTableFailure, CapacityStaysRaised) {
    const DemandedLeak leak;
    for (int nth = 0; nth < 3; ++nth) {
        VEKPrtColourTable table;
        for (int i = 0; i < 255; ++i)
            Add(table, i);
        const long before = LiveBlocks();
        WithFault(nth, [&] { EXPECT_EQ(Add(table, 255), -1); });
        EXPECT_EQ(LiveBlocks(), before + nth) << "arrays got before the failing one are not freed";
        EXPECT_EQ(RedAt(table, 254), 254);
        EXPECT_EQ(Add(table, 255), 1) << "the free slot of the old arrays";
        EXPECT_EQ(Add(table, 0), -1) << "nothing is written past them";
        EXPECT_EQ(CountOf(table), 256);
        VEKPrtColourTable copy(table);
        EXPECT_EQ(Add(copy, 7), 1) << "a copy has arrays of the raised capacity";
        EXPECT_EQ(RedAt(copy, 255), 255);
    }
    VEKPrtColourTable first;
    WithFault(0, [&] { EXPECT_EQ(Add(first, 1), -1); });
    EXPECT_EQ(Add(first, 1), -1);
    EXPECT_EQ(CountOf(VEKPrtColourTable(first)), 0);
}

TEST(ColourTableFailure, CopyIsEmpty) {
    const DemandedLeak leak;
    VEKPrtColourTable table;
    Add(table, 1);
    for (int nth = 0; nth < 3; ++nth) {
        const long before = LiveBlocks();
        WithFault(nth, [&] {
            VEKPrtColourTable copy(table);
            EXPECT_EQ(CountOf(copy), 0);
            EXPECT_EQ(RedAt(copy, 0), -1);
        });
        EXPECT_EQ(LiveBlocks(), before + 2) << "all three are asked for; those that were got are not freed";
    }
}

TEST(Image, OwnsItsColourTable) {
    static int destroyed;
    destroyed = 0;
    struct Table : VEKPrtColourTable {
        ~Table() override { ++destroyed; }
    };
    const auto image =
        Make<VEKPrtImageElt>(VEKMathPoint2D(1, 2), 3.0, 4.0, VEKPrtImageInch, VEKMath2x2Matrix(1, 2, 3, 4));
    auto* const table = new Table;
    image->SetColourTable(table);
    image->SetColourTable(table);
    EXPECT_EQ(destroyed, 0);
    Add(*table, 42);
    const auto copy = Make<VEKPrtImageElt>(*image), assigned = Make<VEKPrtImageElt>(),
               duplicate = Duplicated(*image);
    assigned->SetColourTable(new Table);
    *assigned = *image;
    EXPECT_EQ(destroyed, 1);
    image->SetColourTable(nullptr);
    EXPECT_EQ(destroyed, 2);
    EXPECT_EQ(TableOf(*image), nullptr);
    for (VEKPrtImageElt* const other : {copy.Get(), assigned.Get(), duplicate.Get()}) {
        EXPECT_EQ(RedAt(*TableOf(*other), 0), 42);
        VEKMathPoint2D origin;
        double width = 0, height = 0;
        VEKPrtImageUnits units;
        VEKMath2x2Matrix matrix;
        other->GetOrigin(origin);
        other->GetSize(width, height);
        other->GetUnits(units);
        other->GetMatrix(matrix);
        EXPECT_EQ(origin, VEKMathPoint2D(1, 2));
        EXPECT_EQ(width * 10 + height, 34.0);
        EXPECT_EQ(units, VEKPrtImageInch);
        EXPECT_EQ(matrix, VEKMath2x2Matrix(1, 2, 3, 4));
    }
    *assigned = *image;
    EXPECT_EQ(TableOf(*assigned), nullptr) << "a source without a table takes the target's away";
    VEKPrtImageUnits units;
    Make<VEKPrtImageElt>()->GetUnits(units);
    EXPECT_EQ(units, 4);
}

namespace {

VEKPixelImage* PixelsOf(const VEKPrtBitmapImageElt& iBitmap) {
    VEKPixelImage* image = nullptr;
    iBitmap.GetPixelImage(image);
    return image;
}

} // namespace

TEST(BitmapImage, SetParametersKeepsTheOldImage) {
    const auto first = Make<VEKPixelImage>(1, 1), second = Make<VEKPixelImage>(1, 1);
    const auto bitmap = Make<VEKPrtBitmapImageElt>(VEKMathPoint2D(1, 2), 3.0, 4.0, 0.1, first.Get());
    EXPECT_EQ(Count(first), 2UL);
    bitmap->SetParameters(VEKMathPoint2D(), 5.0, 6.0, 45.0, first.Get());
    EXPECT_EQ(Count(first), 2UL) << "one released, one taken";
    bitmap->SetParameters(VEKMathPoint2D(), 5.0, 6.0, 45.0, second.Get());
    EXPECT_EQ(Count(first), 2UL) << "the old image keeps the reference";
    EXPECT_EQ(Count(second), 2UL);
    float orientation = 0;
    bitmap->GetOrientation(orientation);
    EXPECT_EQ(orientation, 0.1F) << "the orientation is ignored";
    double wide = 0, width = 0, height = 0;
    VEKMathPoint2D origin(9, 9);
    VEKPixelImage* image = nullptr;
    bitmap->GetParameters(origin, width, height, wide, image);
    EXPECT_EQ(wide, static_cast<double>(0.1F)) << "narrowed when it was constructed";
    bitmap->SetParameters(origin, 0, 0, 0, nullptr);
    EXPECT_EQ(Count(second), 2UL);
    first->Release();
    second->Release();
}

TEST(BitmapImage, HoldsTheOnlyReference) {
    const auto bitmap = Make<VEKPrtBitmapImageElt>();
    bitmap->SetPixelImage(Make<VEKPixelImage>(1, 1).Get());
    bitmap->SetParameters(VEKMathPoint2D(), 0, 0, 0, PixelsOf(*bitmap));
    EXPECT_EQ(Count(PixelsOf(*bitmap)), 1UL) << "passed back to itself it survives";
    bitmap->SetPixelImage(nullptr);
}

TEST(BitmapImage, CopiesShareAndDuplicatesCopy) {
    const auto image = Make<VEKPixelImage>(1, 1);
    const auto bitmap = Make<VEKPrtBitmapImageElt>();
    bitmap->SetPixelImage(image.Get());
    bitmap->SetPixelImage(image.Get());
    bitmap->SetOrientation(12.5F);
    EXPECT_EQ(Count(image), 2UL);
    const auto copy = Make<VEKPrtBitmapImageElt>(*bitmap);
    *copy = *bitmap;
    EXPECT_EQ(Count(image), 3UL);
    const auto duplicate = Duplicated(*bitmap);
    EXPECT_EQ(Count(image), 3UL);
    EXPECT_NE(PixelsOf(*duplicate), image.Get());
    EXPECT_EQ(Count(PixelsOf(*duplicate)), 1UL);
    float orientation = 0;
    duplicate->GetOrientation(orientation);
    EXPECT_EQ(orientation, 12.5F);
    VEKRef<VEKPrtBitmapImageElt> sharing;
    WithFault(1, [&] { sharing = Duplicated(*bitmap); });
    EXPECT_EQ(PixelsOf(*sharing), image.Get()) << "an image that cannot be copied stays shared";
    EXPECT_EQ(Count(image), 4UL);
}
