// Random operations on the library and, side by side, on a plain model of it.  After each step every object,
// list, string, record and reference count must agree, and the number of blocks that were asked for and are
// left.
//
// VEKPRT_RANDOM_STEPS and VEKPRT_RANDOM_SEED in the environment say how many steps, and which.
#include <iostream>
#include <random>
#include <set>

#include "Fields.h"
#include "VEKPrtChildren.h"

namespace {

// What an operation asks for, in the library's order.  One request fails, with sticky all from there on.
struct Heap {
    long nth = -1, asked = 0, blocks = 0;
    bool sticky = false;
    bool Take() {
        const bool fails = asked == nth || (sticky && asked > nth);
        ++asked;
        blocks += fails ? 0 : 1;
        return !fails;
    }
    void Free(int iBlocks) { blocks -= iBlocks; }
} g_heap;

struct Text {
    std::string value;
    void Assign(const std::string& iValue) {
        if (!iValue.empty() && !g_heap.Take()) return;
        g_heap.Free(!value.empty());
        value = iValue;
    }
};

// An owned array, which may be missing although it has a count.
struct Array {
    bool there = false;
    int count = 0;
    std::vector<double> values;
    std::vector<double> Zeros() const { return std::vector<double>(static_cast<std::size_t>(count)); }
    void Drop() {
        g_heap.Free(there);
        there = false;
    }
    void Set(int iCount, std::vector<double> iValues, int iLeast = 1) {
        Drop();
        count = iCount;
        if (count < iLeast) return;
        there = g_heap.Take();
        values = std::move(iValues);
    }
    void Copy(const Array& iSource) { Set(iSource.count, iSource.there ? iSource.values : iSource.Zeros()); }
    // The old array goes only where a new one comes; otherwise what it held is lost.
    bool Append(double iValue) {
        const bool had = there;
        if (!had) values = Zeros();
        ++count;
        there = g_heap.Take();
        if (!there) return false;
        values.push_back(iValue);
        g_heap.Free(had);
        return true;
    }
};

enum Kind { line, rectangle, polyline, text, group, pattern, symbol, region, figure, page, model, pixels };
using Classes = std::tuple<VEKPrtLineElt, VEKPrtRectangleElt, VEKPrtPolylineElt, VEKPrtTextElt,
                           VEKPrtGroupElt, VEKPrtPatternElt, VEKPrtSymbolElt, VEKPrtClosedFigureRegionElt,
                           VEKPrtClosedFigureElt, VEKPrtImageElt, VEKPrtModel, VEKPixelImage>;
bool IsStroked(Kind iKind) { return iKind <= text || iKind == figure; }
bool IsFilled(Kind iKind) { return iKind == rectangle || iKind == text || iKind == figure; }
bool IsHolder(Kind iKind) { return iKind >= group && iKind <= model; }
bool IsElement(Kind iKind) { return iKind <= page; }
bool IsPixels(Kind iKind) { return iKind == pixels; }
bool Accepts(Kind iHolder, Kind iMember) {
    return iHolder == model ? iMember == page : iHolder == figure ? iMember == region : IsElement(iMember);
}

template <class T>
constexpr bool isPlaced = In<T, Stroked> || In<T, PlacedOnly>;

struct Node;
struct Records {
    unsigned colour = 0;
    Array dashes, kinds, values[7]; // by kind
    Node* image = nullptr;
    std::vector<Array*> Arrays() {
        std::vector<Array*> arrays = {&dashes, &kinds};
        for (Array& each : values)
            arrays.push_back(&each);
        return arrays;
    }
};

// One object of the library.
struct Node : Records {
    Kind kind = line;
    VEKBaseUnknown* real = nullptr;
    long references = 1;
    Text strings[4]; // the last is a text's own
    Array points;
    bool hasList = false, hasTable = false;
    int listCapacity = 0, capacity = 0, allocated = 0, colours = 0; // the last three are the table's
    std::vector<Node*> members;
};

// Calls iUse with the real object behind a node, typed.
template <std::size_t I = 0, class Use>
void Typed(const Node& iNode, Use iUse) {
    if (iNode.kind == I) return iUse(static_cast<std::tuple_element_t<I, Classes>&>(*iNode.real));
    if constexpr (I + 1 < std::tuple_size_v<Classes>) Typed<I + 1>(iNode, iUse);
}

bool Contains(const Node& iHolder, const Node& iNode) {
    const auto contains = [&](const Node* iMember) { return Contains(*iMember, iNode); };
    return &iHolder == &iNode || std::any_of(iHolder.members.begin(), iHolder.members.end(), contains);
}

int Occurrences(const Node& iNode) {
    int count = 1;
    for (const Node* const member : iNode.members)
        count += Occurrences(*member);
    return count;
}

// The plain model: what the library does, in its order, without its objects.
class Plain {
public:
    std::set<Node*> alive;
    std::vector<Node*> lost; // one reference each that nobody gives back

    Node* Born(Kind iKind) {
        if (!g_heap.Take()) return nullptr;
        auto* const node = new Node;
        node->kind = iKind;
        return *alive.insert(node).first;
    }
    void Release(Node* ioNode) {
        if (!ioNode || --ioNode->references > 0) return;
        for (Node* const member : ioNode->members)
            Release(member);
        Release(ioNode->image);
        for (Array* const array : ioNode->Arrays())
            array->Drop();
        ioNode->points.Drop();
        for (Text& string : ioNode->strings)
            string.Assign("");
        DropList(*ioNode);
        DropTable(*ioNode);
        g_heap.Free(IsPixels(ioNode->kind) ? 2 : 1);
        alive.erase(ioNode);
        delete ioNode;
    }
    void Hold(Node*& ioHeld, Node* iImage) {
        if (ioHeld == iImage) return;
        Release(ioHeld);
        ioHeld = iImage;
        if (ioHeld) ++ioHeld->references;
    }
    static void CopyStroke(Records& oTarget, const Records& iSource) {
        oTarget.colour = iSource.colour;
        if (oTarget.dashes.there || iSource.dashes.there) oTarget.dashes.Copy(iSource.dashes);
    }
    static void CopyTransform(Records& oTarget, const Records& iSource) {
        oTarget.kinds.Copy(iSource.kinds);
        for (const int kind : {0, 3, 4, 2, 5, 6, 1}) // in the order of the fields
            oTarget.values[kind].Copy(iSource.values[kind]);
    }
    void Add(Node& ioHolder, Node* iMember) {
        if (!iMember || iMember == &ioHolder) return;
        if (!ioHolder.hasList) ioHolder.hasList = g_heap.Take();
        if (!ioHolder.hasList) return;
        ++iMember->references;
        if (!Append(ioHolder, iMember)) lost.push_back(iMember);
    }
    void Remove(Node& ioHolder, Node* iMember) {
        const auto at = std::find(ioHolder.members.begin(), ioHolder.members.end(), iMember);
        if (at == ioHolder.members.end()) return;
        ioHolder.members.erase(at);
        Release(iMember);
    }
    Node* Copy(Node& iSource) {
        Node* const copy = Born(iSource.kind);
        if (copy) CopyOwn(*copy, iSource);
        return copy;
    }
    void Assign(Node& ioTarget, Node& iSource) {
        if (&ioTarget == &iSource) return;
        for (int i = 0; i < 3; ++i)
            ioTarget.strings[i].Assign(iSource.strings[i].value);
        CopyOwn(ioTarget, iSource);
    }
    Node* Duplicate(Node& iSource) {
        const bool copiesFirst = iSource.kind == rectangle || iSource.kind == polyline;
        Node* const copy = copiesFirst ? Copy(iSource) : Born(iSource.kind);
        if (!copy) return nullptr;
        if (!IsHolder(copy->kind)) Assign(*copy, iSource);
        if (copy->kind == page) CopyTable(*copy, iSource);
        copy->hasList = iSource.hasList && g_heap.Take();
        for (std::size_t i = 0; copy->hasList && i < iSource.members.size(); ++i)
            if (Node* const own = Duplicate(*iSource.members[i])) Append(*copy, own); // or it is lost
        if (copy->kind == figure) CopyStroke(*copy, iSource);
        if (copy->kind == rectangle || copy->kind == figure) DuplicateFill(iSource, *copy);
        if (IsHolder(copy->kind)) CopyTransform(*copy, iSource);
        return copy;
    }
    static void AddColour(Node& ioPage) {
        if (ioPage.colours + 1 >= ioPage.capacity) {
            ioPage.capacity += 256;
            if (!Reallocate(ioPage)) return;
        }
        if (ioPage.colours < ioPage.allocated || Reallocate(ioPage)) ++ioPage.colours;
    }

private:
    static void DropList(Node& ioHolder) {
        g_heap.Free(ioHolder.hasList + (ioHolder.listCapacity > 0));
        ioHolder.members.clear();
        ioHolder.listCapacity = 0;
    }
    static void DropTable(Node& ioPage) {
        g_heap.Free(ioPage.hasTable + (ioPage.allocated > 0 ? 3 : 0));
        ioPage.capacity = ioPage.allocated = ioPage.colours = 0;
    }
    static bool Reallocate(Node& ioPage) {
        if (!g_heap.Take() || !g_heap.Take() || !g_heap.Take()) return false; // those that came are lost
        g_heap.Free(ioPage.allocated > 0 ? 3 : 0);
        ioPage.allocated = ioPage.capacity;
        return true;
    }
    static void CopyTable(Node& oTarget, const Node& iSource) {
        DropTable(oTarget);
        oTarget.hasTable = iSource.hasTable && g_heap.Take();
        if (!oTarget.hasTable || iSource.capacity == 0) return;
        const bool each[] = {g_heap.Take(), g_heap.Take(), g_heap.Take()};
        if (!each[0] || !each[1] || !each[2] || iSource.allocated == 0) return;
        oTarget.capacity = oTarget.allocated = iSource.capacity;
        oTarget.colours = iSource.colours;
    }
    static bool Append(Node& ioHolder, Node* iMember) {
        const int size = static_cast<int>(ioHolder.members.size());
        if (size == ioHolder.listCapacity) {
            if (!g_heap.Take()) return false;
            g_heap.Free(size > 0);
            ioHolder.listCapacity = std::max(4, 2 * size);
        }
        ioHolder.members.push_back(iMember);
        return true;
    }
    void Share(Node& ioTarget, const Node& iSource) {
        if (!ioTarget.hasList && !iSource.hasList) return;
        const std::vector<Node*> old = ioTarget.members;
        const std::size_t missed =
            ioTarget.kind != figure && ioTarget.kind != model ? old.size() - 1 : old.size();
        for (std::size_t i = 0; i < old.size(); ++i)
            i == missed ? lost.push_back(old[i]) : Release(old[i]);
        DropList(ioTarget);
        ioTarget.hasList = g_heap.Take();
        for (std::size_t i = 0; ioTarget.hasList && i < iSource.members.size(); ++i)
            Add(ioTarget, iSource.members[i]);
    }
    void CopyOwn(Node& ioTarget, Node& iSource) {
        ++iSource.references; // it may be one of the old members
        if (ioTarget.kind == page) CopyTable(ioTarget, iSource);
        Share(ioTarget, iSource);
        if (ioTarget.points.there || iSource.points.there)
            ioTarget.points.Set(iSource.points.there ? iSource.points.count : 0, iSource.points.values);
        if (ioTarget.kind == text) ioTarget.strings[3].Assign(iSource.strings[3].value);
        CopyStroke(ioTarget, iSource);
        Hold(ioTarget.image, iSource.image);
        CopyTransform(ioTarget, iSource);
        Release(&iSource);
    }
    void DuplicateFill(const Node& iSource, Node& ioCopy) {
        if (!iSource.image) return;
        if (ioCopy.image) lost.push_back(ioCopy.image);
        ioCopy.image = Born(pixels);
        if (!ioCopy.image || g_heap.Take()) return;
        g_heap.Free(-1); // the image goes with both of its blocks
        Release(std::exchange(ioCopy.image, nullptr));
    }
};

// Both, step by step.
class World {
public:
    explicit World(unsigned iSeed) : _random(iSeed) {}
    std::string what;

    void Step() {
        Node* const node = AnyHeld([](Kind iKind) { return !IsPixels(iKind); });
        const int operation = _held.size() > 15 ? 9 : Any(10);
        if (operation < 2 || !node) return Create();
        if (operation < 5) return Any(3) == 0 ? ChangeRecord() : Change(*node);
        if (operation < 7) return AddOrRemove();
        if (operation < 9) return CopyOrAssign(*node);
        const auto at = _held.begin() + Any(static_cast<int>(_held.size()));
        Node* const released = *at;
        _held.erase(at);
        GiveBack(released);
        // What got lost as well, so that the world stays small.
        for (Node* const lost : std::exchange(_plain.lost, {}))
            if (lost->real) GiveBack(lost);
    }

    void Verify() {
        for (const Node* const node : _plain.alive)
            VerifyNode(*node);
        ExpectTransform(_transform, _record);
    }

    // Gives back what can be given back; the rest is lost for good.
    void Finish() {
        _plain.Hold(_record.image, nullptr);
        _fill = Fill();
        _record.dashes.Drop();
        _stroke.SetStrokeTypePattern(nullptr, 0);
        RenewTransform();
        _held.insert(_held.end(), _plain.lost.begin(), _plain.lost.end());
        for (Node* const node : _held)
            if (node->real) GiveBack(node);
        DemandedLeak::Add(static_cast<long>(_plain.alive.size() + _gone.size()), g_heap.blocks);
        _gone.insert(_gone.end(), _plain.alive.begin(), _plain.alive.end());
        for (Node* const node : _gone)
            delete node;
    }

private:
    int Any(int iCount) { return static_cast<int>(_random() % static_cast<unsigned>(iCount)); }
    Node* AnyOf(const std::vector<Node*>& iNodes) {
        return iNodes.empty() ? nullptr
                              : iNodes[static_cast<std::size_t>(Any(static_cast<int>(iNodes.size())))];
    }
    Node* AnyHeld(bool (*iFits)(Kind)) {
        for (int tries = 0; tries < 10; ++tries)
            if (Node* const node = AnyOf(_held); node && iFits(node->kind)) return node;
        return nullptr;
    }

    // An operation on the library, one in four with a failing allocation, and then on the plain side; what
    // they ask for and what they leave must agree.
    template <class Real, class OnPlain>
    void Both(const char* iWhat, Real iReal, OnPlain iOnPlain) {
        what = iWhat;
        Heap heap;
        heap.nth = Any(4) == 0 ? Any(8) : -1;
        heap.sticky = heap.nth >= 0 && Any(2) == 0;
        heap.blocks = g_heap.blocks;
        const long asked = Allocations(), blocks = LiveBlocks();
        AllocationFaults faults(heap.nth, heap.sticky);
        iReal();
        faults.Stop();
        const long nowAsked = Allocations(), nowBlocks = LiveBlocks();
        g_heap = heap;
        iOnPlain();
        EXPECT_EQ(nowAsked - asked, g_heap.asked) << "allocations";
        EXPECT_EQ(nowBlocks - blocks, g_heap.blocks - heap.blocks) << "blocks left";
        g_heap.nth = -1;
        g_heap.sticky = false;
        const long live = VEKBaseUnknown::CountLiveObjects() - _liveBefore;
        EXPECT_EQ(live, static_cast<long>(_plain.alive.size() + _gone.size()));
    }
    void GiveBack(Node* ioNode) {
        Both(
            "release", [&] { ioNode->real->Release(); }, [&] { _plain.Release(ioNode); });
    }
    void RenewTransform() {
        Both(
            "new transform", [&] { _transform = Transform(); },
            [&] { _plain.CopyTransform(_record, Records()); });
    }

    // Takes a new object into the world, and tells each node that the plain side made which object it is.
    void Enter(Node* ioNode, VEKBaseUnknown* iReal) {
        ASSERT_EQ(iReal != nullptr, ioNode != nullptr);
        if (!ioNode) return;
        _held.push_back(ioNode);
        Bind(*ioNode, iReal);
        for (auto at = _plain.alive.begin(); at != _plain.alive.end();) {
            Node* const node = *at;
            at = node->real ? std::next(at) : _plain.alive.erase(at);
            if (!node->real) _gone.push_back(node);
        }
    }
    static void Bind(Node& ioNode, VEKBaseUnknown* iReal) {
        if (ioNode.real) return;
        ioNode.real = iReal;
        Typed(ioNode, [&](auto& ioReal) {
            using T = std::decay_t<decltype(ioReal)>;
            if constexpr (In<T, Filled>) {
                Fill fill;
                ioReal.GetFillAttributes(fill);
                if (ioNode.image) Bind(*ioNode.image, ImageOf(fill));
            }
            if constexpr (In<T, Holders>) {
                std::size_t i = 0;
                for (auto& member : ChildrenOf(ioReal))
                    if (i < ioNode.members.size()) Bind(*ioNode.members[i++], &member);
            }
        });
    }

    template <std::size_t I = 0>
    static VEKBaseUnknown* New(Kind iKind) {
        if constexpr (I + 1 < std::tuple_size_v<Classes>)
            return iKind == I ? new std::tuple_element_t<I, Classes> : New<I + 1>(iKind);
        return nullptr;
    }
    void Create() {
        const auto kind = static_cast<Kind>(Any(pixels));
        VEKBaseUnknown* real = nullptr;
        Node* node = nullptr;
        Both(
            "create", [&] { real = New(kind); }, [&] { node = _plain.Born(kind); });
        Enter(node, real);
        if (Any(4) > 0) return;
        Enter(_plain.Born(pixels), new VEKPixelImage(1, 1));
        ++g_heap.blocks;
    }

    // One of the client's own records.
    void ChangeRecord() {
        const float dashes[] = {1.0F * static_cast<float>(Any(100)), 2};
        const int aspect = Any(8), length = Any(3), kind = Any(7), value = Any(100);
        Node* const image = Any(3) == 0 ? nullptr : AnyHeld(IsPixels);
        if (aspect == 0) return RenewTransform();
        int status = 0;
        const auto change = [&] {
            if (aspect == 1) _stroke.SetStrokeTypePattern(dashes, static_cast<unsigned char>(length));
            if (aspect == 2) _stroke.SetStrokeColourIndex(static_cast<unsigned>(length));
            if (aspect == 3)
                _fill.SetPattern(image ? static_cast<VEKPixelImage*>(image->real) : nullptr, {0, 0}, {0, 0});
            if (aspect == 4) status = _transform.AddTransform(Value<VEKPrintTransformType>(kind));
            if (aspect > 4) status = g_kinds[kind].add(_transform, value);
        };
        Both("client's record", change, [&] {
            if (aspect == 1) _record.dashes.Set(length, {dashes, dashes + length});
            if (aspect == 2) _record.colour = static_cast<unsigned>(length);
            if (aspect == 3) _plain.Hold(_record.image, image);
            if (aspect <= 3) return;
            const bool hasValue = aspect == 4 || _record.values[kind].Append(value);
            const bool appended = hasValue && _record.kinds.Append(kind);
            EXPECT_EQ(status, appended ? 1 : -1);
        });
    }

    // A string, a record, points or a colour.
    void Change(Node& ioNode) {
        const std::string value = Any(3) == 0 ? "" : std::to_string(Any(1000));
        const VEKUnicodeString string(value.c_str());
        const double coordinates[] = {1.0 * Any(100), 2, 3, 4, 5, 6, 7, 8};
        const int aspect = Any(7), count = Any(5) - 1;
        const auto change = [&](auto& ioReal) {
            using T = std::decay_t<decltype(ioReal)>;
            if constexpr (In<T, AllElements>) {
                if (aspect == 0) ioReal.SetID(string);
                if (aspect == 1) ioReal.SetDescription(string);
                if (aspect == 2) ioReal.SetTitle(string);
            }
            if constexpr (In<T, Stroked>)
                if (aspect == 3) ioReal.SetStrokeAttributes(_stroke);
            if constexpr (In<T, Filled>)
                if (aspect == 4) ioReal.SetFillAttributes(_fill);
            if constexpr (isPlaced<T>)
                if (aspect == 5) ioReal.SetTransformAttributes(_transform);
            if (aspect != 6) return;
            if constexpr (std::is_same_v<T, VEKPrtTextElt>) ioReal.SetText(string);
            if constexpr (std::is_same_v<T, VEKPrtPolylineElt>) ioReal.SetPoints(coordinates, count);
            if constexpr (std::is_same_v<T, VEKPrtImageElt>) {
                VEKPrtColourTable* table = nullptr;
                unsigned index = 0;
                ioReal.GetColourTable(table);
                if (table)
                    table->AddColour(1, 2, 3, index);
                else
                    ioReal.SetColourTable(new (std::nothrow) VEKPrtColourTable);
            }
        };
        const Kind kind = ioNode.kind;
        Both(
            "change", [&] { Typed(ioNode, change); },
            [&] {
                if (aspect < 3 && IsElement(kind)) ioNode.strings[aspect].Assign(value);
                if (aspect == 3 && IsStroked(kind)) _plain.CopyStroke(ioNode, _record);
                if (aspect == 4 && IsFilled(kind)) _plain.Hold(ioNode.image, _record.image);
                if (aspect == 5 && kind < page) _plain.CopyTransform(ioNode, _record);
                if (aspect == 6 && kind == text) ioNode.strings[3].Assign(value);
                if (aspect == 6 && kind == polyline)
                    ioNode.points.Set(count, {coordinates, coordinates + std::max(2 * count, 0)}, 0);
                if (aspect == 6 && kind == page)
                    ioNode.hasTable ? _plain.AddColour(ioNode) : void(ioNode.hasTable = g_heap.Take());
            });
    }

    void AddOrRemove() {
        Node* const holder = AnyHeld(IsHolder);
        if (!holder) return;
        const bool adds = Any(3) > 0, asksOwn = !adds && Any(4) > 0;
        Node* const member = Any(10) == 0 ? nullptr : asksOwn ? AnyOf(holder->members) : AnyHeld(IsElement);
        if (member && !Accepts(holder->kind, member->kind)) return;
        if (adds && member && member != holder && (Contains(*member, *holder) || holder->members.size() > 9))
            return;
        VEKBaseUnknown* const real = member ? member->real : nullptr;
        const auto addOrRemove = [&](auto& ioReal) {
            if constexpr (In<std::decay_t<decltype(ioReal)>, Holders>)
                adds ? AddTo(ioReal, real) : RemoveFrom(ioReal, real);
        };
        Both(
            adds ? "add" : "remove", [&] { Typed(*holder, addOrRemove); },
            [&] { adds ? _plain.Add(*holder, member) : _plain.Remove(*holder, member); });
    }

    void CopyOrAssign(Node& ioNode) {
        if (Occurrences(ioNode) > 20) return;
        const bool copies = Any(3) == 0, duplicates = !copies && ioNode.kind != model && Any(2) == 0;
        // From one of its own kind, itself included, or from a member that perhaps nobody else holds.
        Node* source = Any(3) == 0 ? AnyOf(ioNode.members) : AnyOf(_held);
        if (!source || source->kind != ioNode.kind) source = &ioNode;
        for (const Node* const member : source->members)
            if (source != &ioNode && Contains(*member, ioNode)) return;
        VEKBaseUnknown* real = nullptr;
        VEKPrtGraphicPrimitiveElt* duplicate = nullptr;
        Node* copy = nullptr;
        const auto onReal = [&](auto& ioReal) {
            using T = std::decay_t<decltype(ioReal)>;
            if constexpr (In<T, AllElements>)
                if (duplicates) return ioReal.Duplicate(duplicate);
            if constexpr (In<T, Holders> || In<T, AllElements>)
                copies ? void(real = new T(ioReal)) : void(ioReal = static_cast<T&>(*source->real));
        };
        Both(
            copies       ? "copy"
            : duplicates ? "duplicate"
                         : "assign",
            [&] { Typed(ioNode, onReal); },
            [&] {
                if (copies) copy = _plain.Copy(ioNode);
                if (duplicates) copy = _plain.Duplicate(ioNode);
                if (!copies && !duplicates) _plain.Assign(ioNode, *source);
            });
        Enter(copy, duplicates ? duplicate : real);
    }

    // Each Get at each position: the n-th entry of a kind goes with the n-th value.
    static void ExpectTransform(const Transform& iTransform, const Records& iRecords) {
        unsigned count = 0;
        VEKPrintTransformType* kinds = nullptr;
        iTransform.GetTransformTab(count, kinds);
        ASSERT_EQ(static_cast<int>(count), iRecords.kinds.count);
        ASSERT_EQ(kinds != nullptr, iRecords.kinds.there);
        int seen[7] = {};
        for (unsigned i = 0; i <= count; ++i) {
            const bool inside = kinds && i < count;
            if (inside) {
                EXPECT_EQ(kinds[i], static_cast<int>(iRecords.kinds.values[i]));
                ++seen[kinds[i]];
            }
            for (int kind = 0; kind < 7; ++kind) {
                const Array& values = iRecords.values[kind];
                const bool found = inside && values.there && seen[kind] > 0 && seen[kind] <= values.count;
                std::optional<double> expected;
                if (found) expected = values.values[static_cast<std::size_t>(seen[kind]) - 1];
                EXPECT_EQ(g_kinds[kind].get(iTransform, i), expected) << g_kinds[kind].name;
            }
        }
    }

    static void VerifyNode(const Node& iNode) {
        EXPECT_EQ(Count(iNode.real), static_cast<unsigned long>(iNode.references));
        Typed(iNode, [&](auto& iReal) {
            using T = std::decay_t<decltype(iReal)>;
            VEKUnicodeString strings[4];
            if constexpr (In<T, AllElements>) {
                iReal.GetID(strings[0]);
                iReal.GetDescription(strings[1]);
                iReal.GetTitle(strings[2]);
            }
            if constexpr (std::is_same_v<T, VEKPrtTextElt>) iReal.GetText(strings[3]);
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(strings[i].ToUtf8(), iNode.strings[i].value);
            if constexpr (In<T, Stroked>) {
                Stroke stroke;
                unsigned colour = 0;
                iReal.GetStrokeAttributes(stroke);
                stroke.GetStrokeColourIndex(colour);
                const std::vector<float> dashes = DashesOf(stroke);
                EXPECT_EQ(colour, iNode.colour);
                EXPECT_EQ(std::vector<double>(dashes.begin(), dashes.end()),
                          iNode.dashes.there ? iNode.dashes.values : std::vector<double>());
            }
            if constexpr (In<T, Filled>) {
                Fill fill;
                iReal.GetFillAttributes(fill);
                EXPECT_EQ(ImageOf(fill), iNode.image ? iNode.image->real : nullptr);
            }
            if constexpr (isPlaced<T>) {
                Transform transform;
                iReal.GetTransformAttributes(transform);
                Records copied = iNode;
                for (Array* const array : copied.Arrays()) {
                    if (!array->there) array->values = array->Zeros(); // in a copy they are there again
                    array->there = array->count > 0;
                }
                ExpectTransform(transform, copied);
            }
            if constexpr (std::is_same_v<T, VEKPrtPolylineElt>) {
                double* points = nullptr;
                int count = 0;
                iReal.GetPoints(points, count);
                ASSERT_EQ(count, iNode.points.count);
                ASSERT_EQ(points != nullptr, iNode.points.there);
                if (!points) return;
                EXPECT_EQ(std::vector<double>(points, points + 2LL * count), iNode.points.values);
            } else if constexpr (std::is_same_v<T, VEKPrtImageElt>) {
                VEKPrtColourTable* table = nullptr;
                int colours = 0;
                iReal.GetColourTable(table);
                ASSERT_EQ(table != nullptr, iNode.hasTable);
                if (table) table->GetColourCount(colours);
                EXPECT_EQ(colours, iNode.colours);
            }
            if constexpr (In<T, Holders>) {
                const auto* const list = ListOf(iReal);
                ASSERT_EQ(list != nullptr, iNode.hasList);
                ASSERT_EQ(list ? list->Size() : 0, static_cast<int>(iNode.members.size()));
                for (std::size_t i = 0; i < iNode.members.size(); ++i)
                    EXPECT_EQ((*list)[static_cast<int>(i + 1)], iNode.members[i]->real);
            }
        });
    }

    std::mt19937 _random;
    Plain _plain;
    std::vector<Node*> _held; // one reference of the client's each
    std::vector<Node*> _gone; // duplicates that a list had no room for, with all that they hold
    Records _record;          // the client's own records
    Stroke _stroke;
    Fill _fill;
    Transform _transform;
    const long _liveBefore = VEKBaseUnknown::CountLiveObjects();
};

long FromEnvironment(const char* iName, long iDefault) {
    const char* const value = std::getenv(iName);
    return value ? std::atol(value) : iDefault;
}

} // namespace

TEST(Random, AgreesWithAPlainModel) {
    const DemandedLeak leak(0, 0); // Finish says how much
    const long steps = FromEnvironment("VEKPRT_RANDOM_STEPS", 40000);
    const long seed = FromEnvironment("VEKPRT_RANDOM_SEED", 1);
    std::cout << steps << " steps, seed " << seed << '\n';
    g_heap = Heap();
    World world(static_cast<unsigned>(seed));
    for (long step = 0; step < steps; ++step) {
        world.Step();
        world.Verify();
        if (HasFailure()) FAIL() << "step " << step << " (" << world.what << "), seed " << seed;
    }
    world.Finish();
}
