#include "TestSupport.h"

#include <malloc.h>
#if defined(_WIN32)
#define malloc_usable_size _msize
#endif

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

// There where the program has the leak sanitizer.
#if !defined(_WIN32)
extern "C" __attribute__((weak)) void __lsan_disable();
extern "C" __attribute__((weak)) void __lsan_enable();
#endif

namespace {

long g_blocks = 0;
long g_peak = 0;
long g_allocations = 0;
long g_demandedObjects = 0;
long g_demandedBlocks = 0;

struct Faults {
    bool on = false;
    bool sticky = false;
    long countdown = 0;
    long hits = 0;
} g_faults;

bool MustFail() {
    if (!g_faults.on) return false;
    const bool fail = g_faults.countdown == 0 || (g_faults.sticky && g_faults.countdown < 0);
    --g_faults.countdown;
    g_faults.hits += fail ? 1 : 0;
    return fail;
}

void* Allocate(std::size_t iSize) noexcept {
    ++g_allocations;
    void* const block = MustFail() ? nullptr : std::malloc(iSize ? iSize : 1);
    if (block) std::memset(block, 0xA5, iSize); // what is read too early shows
    g_blocks += block ? 1 : 0;
    g_peak = std::max(g_peak, g_blocks);
    return block;
}

void Deallocate(void* iBlock) noexcept {
    g_blocks -= iBlock ? 1 : 0;
    if (iBlock) std::memset(iBlock, 0x5A, malloc_usable_size(iBlock)); // what is read too late, too
    std::free(iBlock);
}

void SetLeakSanitizer([[maybe_unused]] bool iOn) {
#if !defined(_WIN32)
    if (const auto call = iOn ? __lsan_enable : __lsan_disable) call();
#endif
}

// After every test: no framework object and no memory block is left that the behaviour does not demand.
class LeakCheck : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo& iTest) override {
        // A class is registered once in a process, here so that no test seems to lose the block; the tests of
        // registration itself run in processes of their own.
        EXPECT_TRUE(IsRegistration(iTest) || RegisterElements());
        { SCOPED_TRACE("makes room for the traces of the tests"); }
        g_demandedObjects = g_demandedBlocks = 0;
        _objects = VEKBaseUnknown::CountLiveObjects();
        _blocks = LiveBlocks();
    }
    void OnTestEnd(const testing::TestInfo& iTest) override {
        const long blocks = LiveBlocks() - _blocks; // before an expectation allocates
        EXPECT_EQ(VEKBaseUnknown::CountLiveObjects() - _objects, g_demandedObjects) << "objects left";
        if (IsRegistration(iTest) || iTest.result()->Failed()) return; // what a failure says stays in memory
        EXPECT_EQ(blocks, g_demandedBlocks) << "memory blocks left";
    }
    static bool IsRegistration(const testing::TestInfo& iTest) {
        return std::strcmp(iTest.test_suite_name(), "Registration") == 0;
    }
    long _objects = 0;
    long _blocks = 0;
};

} // namespace

void* operator new(std::size_t iSize) {
    void* const block = Allocate(iSize);
    if (!block) throw std::bad_alloc();
    return block;
}
void* operator new[](std::size_t iSize) { return operator new(iSize); }
void* operator new(std::size_t iSize, const std::nothrow_t&) noexcept { return Allocate(iSize); }
void* operator new[](std::size_t iSize, const std::nothrow_t&) noexcept { return Allocate(iSize); }
void operator delete(void* iBlock) noexcept { Deallocate(iBlock); }
void operator delete[](void* iBlock) noexcept { Deallocate(iBlock); }
void operator delete(void* iBlock, std::size_t) noexcept { Deallocate(iBlock); }
void operator delete[](void* iBlock, std::size_t) noexcept { Deallocate(iBlock); }
void operator delete(void* iBlock, const std::nothrow_t&) noexcept { Deallocate(iBlock); }
void operator delete[](void* iBlock, const std::nothrow_t&) noexcept { Deallocate(iBlock); }

long LiveBlocks() { return g_blocks; }
long PeakBlocks() { return std::exchange(g_peak, g_blocks); }
long Allocations() { return g_allocations; }

AllocationFaults::AllocationFaults(long iNth, bool iSticky) { g_faults = {true, iSticky, iNth, 0}; }
long AllocationFaults::Stop() {
    g_faults.on = false;
    return g_faults.hits;
}

DemandedLeak::DemandedLeak(long iObjects, long iBlocks) {
    Add(iObjects, iBlocks);
    SetLeakSanitizer(false);
}
DemandedLeak::~DemandedLeak() { SetLeakSanitizer(true); }
void DemandedLeak::Add(long iObjects, long iBlocks) {
    g_demandedObjects += iObjects;
    g_demandedBlocks += iBlocks;
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new LeakCheck);
    return RUN_ALL_TESTS();
}
