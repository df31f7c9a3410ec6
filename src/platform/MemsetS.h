/// @file
/// The bounds-checked fill of the platform's bounds-checking library.
#ifndef ZOGLES_PLATFORM_MEMSETS_H
#define ZOGLES_PLATFORM_MEMSETS_H

#include <cstddef>

/// Sets `count` bytes at `dest` to `value`, when they fit the `destSize` bytes that are there.
/// Refuses, and touches nothing, when `dest` is null, when `count` is above `destSize`, and when
/// either is above half the address space (a negative size taken as unsigned).
/// @return 0, EINVAL for a null `dest`, or ERANGE for a size
extern "C" __attribute__((visibility("default"))) int memset_s(void* dest, size_t destSize,
                                                               int value, size_t count);

#endif
