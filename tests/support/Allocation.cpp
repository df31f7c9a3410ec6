// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Counts and refuses the library's heap allocations, all of which go through operator new.

#include "support/Harness.h"

#include <cstdlib>
#include <new>

namespace {

// Thread-local, as driver threads allocate, too.
thread_local int outsideDepth = 0;
thread_local bool isCounting = false;
thread_local int allocations = 0;
thread_local int refuseIn = 0;

bool IsRefused() {
    if (outsideDepth > 0) {
        return false;
    }
    if (isCounting) {
        ++allocations;
    }
    return refuseIn > 0 && --refuseIn == 0;
}

void* Allocate(size_t size) {
    return IsRefused() ? nullptr : malloc(size == 0 ? 1 : size);
}

} // namespace

void* operator new(size_t size) {
    void* memory = Allocate(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}
void* operator new(size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
void* operator new[](size_t size) {
    return operator new(size);
}
void* operator new[](size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size);
}
// For types that ask for more alignment than `malloc` gives, such as vectors on 32-bit ARM.
void* operator new[](size_t size, std::align_val_t alignment) {
    void* memory = nullptr;
    if (IsRefused() || posix_memalign(&memory, static_cast<size_t>(alignment), size) != 0) {
        throw std::bad_alloc();
    }
    return memory;
}
void operator delete[](void* memory, std::align_val_t) noexcept {
    free(memory);
}
void operator delete(void* memory) noexcept {
    free(memory);
}
void operator delete(void* memory, size_t) noexcept {
    free(memory);
}
void operator delete[](void* memory) noexcept {
    free(memory);
}
void operator delete[](void* memory, size_t) noexcept {
    free(memory);
}

namespace harness {

int CountAllocations(const std::function<void()>& action) {
    allocations = 0;
    isCounting = true;
    action();
    isCounting = false;
    return allocations;
}

void RefuseAllocation(int nth) {
    refuseIn = nth;
}

Outside::Outside() : nested(outsideDepth > 0) {
    ++outsideDepth;
}

Outside::~Outside() {
    --outsideDepth;
}

} // namespace harness
