#include <climits>
#include <cstdlib>

#include "TestSupport.h"
#include "VEKListPtrVEKMathPoint2D.h"
#include "VEKMath2x2Matrix.h"
#include "VEKMathPoint2D.h"
#include "VEKMetaClass.h"

TEST(BaseUnknown, CountsFromOneAndKnowsItself) {
    const auto first = Make<VEKPrtLineElt>();
    EXPECT_EQ(first->AddRef(), 2UL);
    const auto second = Make<VEKPrtLineElt>();
    *second = *first;
    EXPECT_EQ(Count(second), 1UL);
    struct Thing : VEKBaseUnknown {};
    const auto thing = Make<Thing>(), other = thing;
    EXPECT_EQ(Count(Make<Thing>(*thing)), 1UL) << "a copy counts from 1";
    EXPECT_EQ(thing->IsEqual(other.Get()), 1);
    EXPECT_EQ(thing->IsEqual(first.Get()), 0);
    EXPECT_EQ(thing->IsNull(), 0);
    for (const char* const kind : {"VEKBaseUnknown", VEKBaseUnknown::ClassName(), thing->IsA()})
        EXPECT_EQ(thing->IsAKindOf(kind), 1) << kind;
    EXPECT_EQ(thing->IsAKindOf("Thing"), 0) << "the base answers for itself";
    EXPECT_EQ(thing->GetMetaObject(), VEKBaseUnknown::MetaObject());
    EXPECT_STREQ(VEKBaseUnknown::ClassId(), "System.VEKBaseUnknown");
    EXPECT_EQ(VEKBaseUnknown::MetaObject()->GetSize(), static_cast<long>(sizeof(VEKBaseUnknown)));
    EXPECT_EQ(first->Release(), 1UL);
}

TEST(BaseUnknown, OffersNoInterface) {
    const auto thing = Make<VEKBaseUnknown>();
    void *any = &any, *info = &info;
    unsigned count = 9, bad = 9;
    long id = 9;
    const char* const name = "x";
    EXPECT_EQ(thing->QueryInterface(nullptr, &any), VEKBaseUnknown::NotImplemented);
    EXPECT_EQ(thing->GetTypeInfoCount(&count), VEKBaseUnknown::Done);
    EXPECT_EQ(thing->GetTypeInfo(0, 0, &info), VEKBaseUnknown::NotImplemented);
    EXPECT_EQ(thing->GetIDsOfNames(nullptr, &name, 1, 0, &id), VEKBaseUnknown::NotImplemented);
    EXPECT_EQ(thing->Invoke(0, nullptr, 0, 0, nullptr, nullptr, nullptr, &bad),
              VEKBaseUnknown::NotImplemented);
    EXPECT_EQ(any, nullptr);
    EXPECT_EQ(info, nullptr);
    EXPECT_EQ(count, 0U);
    EXPECT_TRUE(id == 9 && bad == 9) << "other outputs are left alone";
    EXPECT_EQ(thing->QueryInterface(nullptr, nullptr), VEKBaseUnknown::NotImplemented);
    EXPECT_EQ(thing->GetTypeInfoCount(nullptr), VEKBaseUnknown::Done);
    EXPECT_EQ(thing->GetTypeInfo(0, 0, nullptr), VEKBaseUnknown::NotImplemented);
    EXPECT_EQ(thing->QueryInterface(name), nullptr);
    thing->ChangeComponentState(1, 2);
}

TEST(BaseUnknown, NewYieldsNullWhenAllocationFails) {
    VEKPrtLineElt *line = nullptr, *other = nullptr;
    WithFault(0, [&] { line = new VEKPrtLineElt; });
    WithFault(0, [&] { other = new (std::nothrow) VEKPrtLineElt; });
    EXPECT_EQ(line, nullptr);
    EXPECT_EQ(other, nullptr);
    struct Throwing : VEKBaseUnknown {
        Throwing() { throw 1; }
    };
    EXPECT_THROW(new (std::nothrow) Throwing, int) << "and leaves no block behind";
}

TEST(Registration, OfOneClassHappensOnce) {
    const auto retrieve = [](VEKMetaClass* iBase) {
        return fct_RetrieveMetaObject("TestThing", VEKTypeImplementation, iBase, "VEKnull", "Test", 12);
    };
    WithFault(0, [&] { EXPECT_EQ(retrieve(nullptr), nullptr); });
    VEKMetaClass* const meta = retrieve(VEKBaseUnknown::MetaObject());
    ASSERT_NE(meta, nullptr);
    EXPECT_STREQ(meta->GetId(), "Test.TestThing");
    EXPECT_EQ(meta->GetBase(), VEKBaseUnknown::MetaObject());
    EXPECT_EQ(meta->GetSize(), 12);
    EXPECT_EQ(meta->IsAKindOf("VEKBaseUnknown"), 1);
    EXPECT_EQ(meta->IsAKindOf("TestThin"), 0);
    EXPECT_EQ(meta->IsAKindOf(nullptr), 0);
    const auto* const loose =
        fct_RetrieveMetaObject("Loose", VEKTypeImplementation, nullptr, nullptr, nullptr, 1);
    EXPECT_STREQ(loose->GetId(), ".Loose");
    EXPECT_EQ(retrieve(nullptr), meta) << "with another class registered after it";
    EXPECT_EQ(fct_RetrieveMetaObject(nullptr, VEKTypeImplementation, nullptr, "VEKnull", "Test", 1), nullptr);
}

TEST(RawColl, PositionsCountFromOneAndGapsClose) {
    int values[5] = {};
    VEKRawCollPV collection(0);
    for (int* const value : {&values[0], &values[1], &values[2], &values[3], &values[4], &values[0]})
        collection.Append(value);
    EXPECT_EQ(collection.Locate(values), 1);
    EXPECT_EQ(collection.Locate(values, 2), 6);
    EXPECT_EQ(collection.Locate(&collection), 0);
    EXPECT_EQ(collection.Locate(values, -7), 1);
    EXPECT_EQ(collection.Locate(values, 99), 0);
    for (const int position : {0, 7, 2})
        collection.RemovePosition(position);
    EXPECT_EQ(collection.Size(), 5);
    EXPECT_EQ(collection[2], &values[2]);
    for (const int outside : {-1, 0, 6})
        EXPECT_EQ(collection[outside], nullptr) << outside;
}

TEST(RawColl, DropsWhatItCannotHold) {
    int value = 0;
    VEKRawCollPV full(1);
    full.Append(&value);
    WithFault(0, [&] { full.Append(&value); });
    EXPECT_EQ(full.Size(), 1);
    VEKRawCollPV other(0);
    WithFault(0, [&] { other = full; });
    EXPECT_EQ(other.Size(), 0);
    WithFault(0, [&] { EXPECT_EQ(VEKRawCollPV(full).Size(), 0); });
    other = full;
    other = *&other;
    EXPECT_EQ(other[1], &value);
    VEKRawCollPV two(2);
    two.Append(&other);
    two.Append(&full);
    other = two;
    EXPECT_EQ(other[2], &full) << "it has grown";
    other = VEKRawCollPV(-1);
    EXPECT_EQ(other.Size(), 0);
}

TEST(UnicodeString, KeepsItsValueWhenMemoryIsOut) {
    static_assert(sizeof(VEKUnicodeString) == sizeof(void*), "one pointer");
    VEKUnicodeString text("Ärmel");
    WithFault(0, [&] { text = "other"; });
    EXPECT_STREQ(text.ToUtf8(), "Ärmel");
    const char* const kept = text.ToUtf8();
    text = *&text;
    EXPECT_EQ(text.ToUtf8(), kept) << "assigned from itself";
    text = text.ToUtf8() + 2;
    EXPECT_STREQ(text.ToUtf8(), "rmel") << "assigned from its own tail";
    const long before = LiveBlocks();
    text = "";
    EXPECT_EQ(LiveBlocks(), before - 1);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text, VEKUnicodeString(nullptr));
}

TEST(Values, CompareExactly) {
    EXPECT_FALSE(VEKMathPoint2D(0.1 + 0.2, 0) == VEKMathPoint2D(0.3, 0));
    EXPECT_EQ(VEKMath2x2Matrix(), VEKMath2x2Matrix(1, 0, 0, 1));
    const VEKMath2x2Matrix matrix(1, 2, 3, 4);
    EXPECT_EQ(matrix.GetCoef(1, 2), 2.0);
    EXPECT_EQ(matrix.GetCoef(2, 1), 3.0);
    EXPECT_EQ(matrix.GetCoef(0, 1), 0.0);
}

TEST(PixelImage, ClonesOrYieldsNull) {
    std::vector<unsigned char> pixels = {1, 2, 3, 255};
    pixels.resize(20);
    pixels.insert(pixels.end(), {4, 5, 6, 7});
    const auto image = Make<VEKPixelImage>(3, 2), upright = Make<VEKPixelImage>(2, 3);
    for (const auto& original : {image, upright}) {
        const int width = original->GetWidth(), height = original->GetHeight();
        original->SetPixel(0, 0, 1, 2, 3);
        original->SetPixel(width - 1, height - 1, 4, 5, 6, 7);
        original->SetPixel(-1, 1, 9, 9, 9);
        original->SetPixel(width, 0, 9, 9, 9);
        for (const auto& held : {original, VEKRef<VEKPixelImage>::Adopt(original->Clone())}) {
            const unsigned char* const first = std::as_const(*held).GetRow(0);
            EXPECT_EQ(std::vector<unsigned char>(first, first + 24), pixels);
            EXPECT_EQ(held->GetRow(1), first + 4 * width);
            EXPECT_EQ(std::as_const(*held).GetRow(1), first + 4 * width);
            for (const int outside : {-1, height}) {
                EXPECT_EQ(held->GetRow(outside), nullptr) << outside;
                EXPECT_EQ(std::as_const(*held).GetRow(outside), nullptr) << outside;
            }
        }
    }
    for (const long nth : {0L, 1L})
        WithFault(nth, [&] { EXPECT_EQ(image->Clone(), nullptr); });
    for (const auto& [width, height] :
         {std::pair(0, 0), std::pair(0, 5), std::pair(5, 0), std::pair(5, -1), std::pair(INT_MAX, INT_MAX)}) {
        const auto none = VEKRef<VEKPixelImage>::Adopt(Make<VEKPixelImage>(width, height)->Clone());
        EXPECT_EQ(none->GetWidth() + none->GetHeight(), 0) << width;
    }
    WithFault(1, [] { EXPECT_EQ(Make<VEKPixelImage>(3, 2)->GetWidth(), 0); });
}

// In a process of its own, in which no class is registered yet.
TEST(Registration, TriesAgainButNotForItsBase) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    const auto check = [] {
        AllocationFaults none(0, true);
        bool right = !VEKPrtLineElt::MetaObject() && !VEKPrtLineElt::ClassName() &&
                     !VEKPrtLineElt::ClassId() && !VEKBaseUnknown::ClassName() && !VEKBaseUnknown::ClassId();
        const VEKBaseUnknown thing;
        right = right && thing.IsAKindOf("VEKBaseUnknown") == 0 && !thing.IsA() &&
                VEKPrtLineElt().IsAKindOf("VEKPrtLineElt") == 0;
        none.Stop();
        // The root alone fails; what is registered without it stays so.
        AllocationFaults root(0, false);
        const VEKMetaClass* const line = VEKPrtLineElt::MetaObject();
        right = right && root.Stop() == 1 && line &&
                line->GetBase() == meta_object__25VEKPrtGraphicPrimitiveElt && line->GetBase() &&
                !line->GetBase()->GetBase() && VEKBaseUnknown::MetaObject() &&
                VEKPrtGraphicPrimitiveElt::MetaObject() == line->GetBase() && !line->GetBase()->GetBase() &&
                line->IsAKindOf("VEKBaseUnknown") == 0 && line->IsAKindOf("VEKPrtGraphicPrimitiveElt") == 1;
        std::exit(right ? 0 : 1);
    };
    EXPECT_EXIT(check(), testing::ExitedWithCode(0), "");
}
