// What clients can meet of the reference framework.
#include <climits>
#include <cstdlib>

#include "TestSupport.h"
#include "VEKMath2x2Matrix.h"
#include "VEKMetaClass.h"

TEST(BaseUnknown, CountsFromOneAndKnowsItself) {
    struct Thing : VEKBaseUnknown {
        explicit Thing(bool iThrows) {
            if (iThrows) throw 1;
        }
    };
    const auto thing = Make<Thing>(false), copy = Make<Thing>(*thing);
    EXPECT_EQ(thing->AddRef(), 2UL);
    *copy = *thing;
    EXPECT_EQ(Count(copy), 1UL) << "the count is not assigned";
    EXPECT_EQ(Count(Make<Thing>(*thing)), 1UL) << "nor copied";
    EXPECT_EQ(thing->Release(), 1UL);
    EXPECT_TRUE(thing->IsEqual(thing.Get()) == 1 && thing->IsEqual(copy.Get()) == 0 && thing->IsNull() == 0);
    EXPECT_EQ(thing->IsAKindOf(VEKBaseUnknown::ClassName()), 1);
    EXPECT_EQ(thing->IsAKindOf("Thing"), 0) << "the base answers for itself";
    void *any = &any, *info = &info;
    EXPECT_EQ(thing->QueryInterface(nullptr, &any), VEKBaseUnknown::NotImplemented);
    EXPECT_EQ(thing->GetTypeInfo(0, 0, &info), VEKBaseUnknown::NotImplemented);
    EXPECT_TRUE(!any && !info);
    EXPECT_EQ(thing->QueryInterface(nullptr, nullptr), VEKBaseUnknown::NotImplemented);
    WithFault(0, [] { EXPECT_EQ(new VEKPrtLineElt, nullptr); });
    EXPECT_THROW(new (std::nothrow) Thing(true), int) << "and leaves no block behind";
}

TEST(Registration, OfOneClassHappensOnce) {
    const auto retrieve = [](const char* iName, VEKMetaClass* iBase) {
        return fct_RetrieveMetaObject(iName, VEKTypeImplementation, iBase, "VEKnull", nullptr, 12);
    };
    WithFault(0, [&] { EXPECT_EQ(retrieve("TestThing", nullptr), nullptr); });
    VEKMetaClass* const meta = retrieve("TestThing", VEKBaseUnknown::MetaObject());
    ASSERT_NE(meta, nullptr);
    EXPECT_STREQ(meta->GetId(), ".TestThing");
    for (const char* const other : {"TestThin", "VEKPrtLineElt", static_cast<const char*>(nullptr)})
        EXPECT_EQ(meta->IsAKindOf(other), 0);
    EXPECT_NE(retrieve("Later", nullptr), meta);
    EXPECT_EQ(retrieve("TestThing", nullptr), meta);
}

// In a process of its own, in which no class is registered yet.
TEST(Registration, TriesAgainButNotForItsBase) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const auto check = [] {
        AllocationFaults none(0, true);
        bool right = !VEKPrtLineElt::MetaObject() && !VEKPrtLineElt::ClassName() &&
                     !VEKPrtLineElt::ClassId() && !VEKBaseUnknown::ClassName() &&
                     VEKBaseUnknown().IsAKindOf("VEKBaseUnknown") == 0 && !VEKPrtLineElt().IsA() &&
                     VEKPrtLineElt().IsAKindOf("VEKPrtLineElt") == 0;
        none.Stop();
        // The root alone fails; what is registered without it stays so.
        AllocationFaults root(0, false);
        const VEKMetaClass* const line = VEKPrtLineElt::MetaObject();
        right = right && root.Stop() == 1 && line && VEKBaseUnknown::MetaObject() &&
                line->GetBase() == VEKPrtGraphicPrimitiveElt::MetaObject() && line->GetBase() &&
                !line->GetBase()->GetBase() && line->IsAKindOf("VEKPrtGraphicPrimitiveElt") == 1;
        std::exit(right ? 0 : 1);
    };
    EXPECT_EXIT(check(), testing::ExitedWithCode(0), "");
}

TEST(RawColl, HoldsFromPositionOneOnAndDropsWhatItCannotHold) {
    int values[3] = {};
    VEKRawCollPV collection(1), other(0);
    for (int* const value : {&values[0], &values[1], &values[2], &values[0]})
        collection.Append(value);
    EXPECT_EQ(collection.Locate(values, 2), 4);
    EXPECT_EQ(collection.Locate(values, 99) + collection.Locate(&collection), 0);
    for (const int position : {0, 5, 2})
        collection.RemovePosition(position);
    EXPECT_TRUE(collection.Size() == 3 && collection[2] == &values[2] && collection[3] == values);
    EXPECT_TRUE(!collection[-1] && !collection[0] && !collection[4]);
    WithFault(0, [&] { other = collection; });
    EXPECT_EQ(other.Size(), 0);
    WithFault(0, [&] { EXPECT_EQ(VEKRawCollPV(collection).Size(), 0); });
    other = collection;
    other = *&other;
    EXPECT_EQ(other[3], values);
    other = VEKRawCollPV(-1);
    EXPECT_EQ(other.Size(), 0);
}

TEST(UnicodeString, KeepsItsValueWhenMemoryIsOut) {
    VEKUnicodeString text("Ärmel");
    WithFault(0, [&] { text = "other"; });
    text = *&text;
    EXPECT_STREQ(text.ToUtf8(), "Ärmel");
    text = text.ToUtf8() + 2;
    EXPECT_STREQ(text.ToUtf8(), "rmel") << "assigned from its own tail";
    text = "";
    EXPECT_TRUE(text.IsEmpty() && text == VEKUnicodeString(nullptr));
}

TEST(Matrix, NumbersItsCoefficientsByRow) {
    const VEKMath2x2Matrix matrix(1, 2, 3, 4);
    EXPECT_EQ(VEKMath2x2Matrix(), VEKMath2x2Matrix(1, 0, 0, 1));
    EXPECT_EQ(matrix.GetCoef(1, 2), 2.0);
    EXPECT_EQ(matrix.GetCoef(2, 1), 3.0);
    EXPECT_EQ(matrix.GetCoef(0, 1), 0.0);
}

TEST(PixelImage, ClonesOrYieldsNull) {
    std::vector<unsigned char> pixels = {1, 2, 3, 255};
    pixels.resize(20);
    pixels.insert(pixels.end(), {4, 5, 6, 7});
    const auto image = Make<VEKPixelImage>(3, 2);
    image->SetPixel(0, 0, 1, 2, 3);
    image->SetPixel(2, 1, 4, 5, 6, 7);
    image->SetPixel(-1, 1, 9, 9, 9);
    image->SetPixel(3, 0, 9, 9, 9);
    const auto clone = VEKRef<VEKPixelImage>::Adopt(image->Clone());
    const unsigned char* const first = clone->GetRow(0);
    EXPECT_EQ(std::vector<unsigned char>(first, first + 24), pixels);
    EXPECT_EQ(std::as_const(*clone).GetRow(1), first + 12);
    for (const int outside : {-1, 2})
        EXPECT_TRUE(!clone->GetRow(outside) && !std::as_const(*clone).GetRow(outside)) << outside;
    for (const long nth : {0L, 1L})
        WithFault(nth, [&] { EXPECT_EQ(image->Clone(), nullptr); });
    for (const auto& [width, height] : {std::pair(0, 5), std::pair(5, -1), std::pair(INT_MAX, INT_MAX)}) {
        const auto none = VEKRef<VEKPixelImage>::Adopt(Make<VEKPixelImage>(width, height)->Clone());
        EXPECT_EQ(none->GetWidth() + none->GetHeight(), 0) << width;
    }
}
