// Global memory. A moveable block has a handle that is no pointer; a fixed one is its own address.
#include <cstring>
#include <unordered_map>

#include "platform/headless/drawing/gdi_objects.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

constexpr DWORD kNotLocked = 158;  // ERROR_NOT_LOCKED
// No caller of ours needs more; a nonsensical size fails.
constexpr SIZE_T kLargest = SIZE_T{1} << 30;

// The handle in the table for the address of a fixed block.
std::unordered_map<HGLOBAL, HANDLE>& FixedBlocks() {
    static auto& blocks = *new std::unordered_map<HGLOBAL, HANDLE>;
    return blocks;
}

HANDLE TableHandle(HGLOBAL memory) {
    const auto found = FixedBlocks().find(memory);
    return found == FixedBlocks().end() ? memory : found->second;
}

GlobalBlock* FindBlock(HGLOBAL memory) {
    auto* block = Find<GlobalBlock>(TableHandle(memory));
    if (block == nullptr) SetLastError(ERROR_INVALID_HANDLE);
    return block;
}

}  // namespace
}  // namespace headless::gdi

using namespace headless::gdi;

HGLOBAL GlobalAlloc(UINT flags, SIZE_T size) {
    constexpr UINT kKnown = GMEM_MOVEABLE | GMEM_ZEROINIT;
    // The old flags about sharing and compacting (0x2F00 and below) mean nothing any more.
    if ((flags & ~kKnown & ~0x3F30u) != 0)
        headless::ReportUnsupported("GlobalAlloc flags " + std::to_string(flags));
    if (size > kLargest) {
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    const Lock lock;
    auto block = std::make_unique<GlobalBlock>();
    block->size = size;
    block->bytes.resize(size == 0 ? 1 : size);
    block->fixed = (flags & GMEM_MOVEABLE) == 0;
    void* address = block->bytes.data();
    const bool fixed = block->fixed;
    const HANDLE handle = AddObject(std::move(block));
    if (!fixed) return handle;
    FixedBlocks()[address] = handle;
    return address;
}

HGLOBAL GlobalFree(HGLOBAL memory) {
    const Lock lock;
    if (memory == nullptr) return nullptr;
    if (FindBlock(memory) == nullptr) return memory;
    RemoveObject(TableHandle(memory));
    FixedBlocks().erase(memory);
    return nullptr;
}

LPVOID GlobalLock(HGLOBAL memory) {
    const Lock lock;
    GlobalBlock* block = FindBlock(memory);
    if (block == nullptr) return nullptr;
    if (!block->fixed) ++block->locks;
    return block->bytes.data();
}

BOOL GlobalUnlock(HGLOBAL memory) {
    const Lock lock;
    GlobalBlock* block = FindBlock(memory);
    if (block == nullptr) return FALSE;
    if (block->fixed) return TRUE;
    if (block->locks == 0) {
        SetLastError(kNotLocked);
        return FALSE;
    }
    if (--block->locks > 0) return TRUE;
    SetLastError(NO_ERROR);
    return FALSE;
}

SIZE_T GlobalSize(HGLOBAL memory) {
    const Lock lock;
    const GlobalBlock* block = FindBlock(memory);
    return block == nullptr ? 0 : block->size;
}
