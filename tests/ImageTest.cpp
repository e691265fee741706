#include "Fields.h"

TEST(ColourTable, AppendsFindsTheLowestAndIsAssigned) {
    VEKPrtColourTable table;
    const auto found = [&](unsigned char iRed, unsigned char iGreen, unsigned char iBlue) {
        unsigned index = 77;
        const int status = table.GetColourIndex(index, iRed, iGreen, iBlue);
        EXPECT_EQ(status, index == 77 ? -1 : 1);
        return index;
    };
    EXPECT_EQ(found(1, 2, 3), 77U);
    EXPECT_EQ(table.ModifyColour(0, 1, 2, 3), -1);
    for (unsigned i = 0; i < 2; ++i) {
        unsigned index = 77;
        EXPECT_EQ(table.AddColour(1, 2, 3, index), 1);
        EXPECT_EQ(index, i);
    }
    EXPECT_EQ(found(1, 2, 3), 0U);
    EXPECT_EQ(table.ModifyColour(0, 4, 5, 6), 1);
    EXPECT_EQ(table.ModifyColour(2, 0, 0, 0), -1);
    EXPECT_EQ(ColoursOf(table), (Colours{0x040506, 0x010203}));
    EXPECT_EQ(found(1, 2, 3), 1U);
    for (const unsigned index : {found(9, 5, 6), found(4, 9, 6), found(4, 5, 9)})
        EXPECT_EQ(index, 77U) << "two components are not enough";
    VEKPrtColourTable assigned;
    Add(assigned, 9);
    assigned = table;
    assigned = *&assigned;
    table.ModifyColour(0, 7, 8, 9);
    EXPECT_EQ(ColoursOf(assigned), (Colours{0x040506, 0x010203}));
    assigned = VEKPrtColourTable();
    EXPECT_EQ(ColoursOf(assigned), Colours());
}

TEST(ColourTable, KeepsItsRaisedCapacityWhenItCannotGrow) {
    for (int nth = 0; nth < 3; ++nth) {
        const DemandedLeak leak(0, 3L * nth);
        VEKPrtColourTable table;
        const auto allocationsOf = [&](int iFrom, int iTo) {
            const long before = Allocations();
            for (int i = iFrom; i < iTo; ++i)
                EXPECT_EQ(Add(table, i), 1) << i;
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
        AllocationFaults none(0, true);
        EXPECT_EQ(Add(copy, 7), 1) << "a copy has arrays of the raised capacity";
        none.Stop();
        EXPECT_EQ(ColoursOf(copy).back(), 7);
        EXPECT_EQ(allocationsOf(256, 511), 3) << "arrays of 512 entries";
        EXPECT_EQ(allocationsOf(511, 512), 3) << "then it grows as ever";
        Colours expected(512);
        std::iota(expected.begin(), expected.end(), 0);
        EXPECT_EQ(ColoursOf(table), expected);
    }
    VEKPrtColourTable first, assigned;
    WithFault(0, [&] { EXPECT_EQ(Add(first, 1), -1); });
    assigned = first; // nothing, as neither has arrays
    const DemandedLeak leak(0, 3);
    EXPECT_EQ(ColoursOf(VEKPrtColourTable(first)), Colours()) << "arrays were asked for, and lost";
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
    WithFault(0, [&] { *assigned = *image; });
    EXPECT_EQ(TableOf(*assigned), nullptr) << "none, not the old one";
    EXPECT_EQ(ColoursOf(*TableOf(*image)), Colours{42});
}

TEST(BitmapImage, SetParametersKeepsTheOldImage) {
    const auto first = Make<VEKPixelImage>(1, 1), second = Make<VEKPixelImage>(1, 1);
    const VEKMathPoint2D a(1, 2), b(7, 8);
    const auto bitmap = Make<VEKPrtBitmapImageElt>(a, 3.0, 4.0, 0.1, first.Get());
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
    expect(first.Get(), a, 34.0);
    bitmap->SetParameters(a, 5.0, 6.0, 45.0, first.Get());
    EXPECT_EQ(Count(first), 2UL) << "one released, one taken";
    bitmap->SetParameters(b, 5.0, 6.0, 45.0, second.Get());
    expect(second.Get(), b, 56.0);
    bitmap->SetParameters(a, 0, 0, 0, nullptr);
    for (VEKPixelImage* const image : {first.Get(), second.Get()}) {
        EXPECT_EQ(Count(image), 2UL) << "the old image keeps the reference";
        image->Release();
    }
    bitmap->SetPixelImage(Make<VEKPixelImage>(1, 1).Get());
    bitmap->SetParameters(a, 0, 0, 0, PixelsOf(*bitmap));
    bitmap->SetPixelImage(PixelsOf(*bitmap));
    EXPECT_EQ(Count(PixelsOf(*bitmap)), 1UL) << "passed back to itself it survives";
}

TEST(BitmapImage, CopiesShareAndDuplicatesCopy) {
    const auto image = Make<VEKPixelImage>(1, 1);
    const auto bitmap = Make<VEKPrtBitmapImageElt>();
    bitmap->SetPixelImage(image.Get());
    bitmap->SetPixelImage(image.Get());
    const auto copy = Make<VEKPrtBitmapImageElt>(*bitmap);
    *copy = *bitmap;
    const auto duplicate = Duplicated(*bitmap);
    EXPECT_EQ(Count(image), 3UL);
    EXPECT_EQ(Count(PixelsOf(*duplicate)), 1UL);
    VEKRef<VEKPrtBitmapImageElt> sharing;
    WithFault(1, [&] { sharing = Duplicated(*bitmap); });
    EXPECT_EQ(PixelsOf(*sharing), image.Get()) << "an image that cannot be copied stays shared";
    EXPECT_EQ(Count(image), 4UL);
}
