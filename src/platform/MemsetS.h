// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// A bounds-checked `memset`, for platforms without one.
#ifndef ZOGLES_PLATFORM_MEMSETS_H
#define ZOGLES_PLATFORM_MEMSETS_H

#include <cstddef>

/// Sets `count` bytes at `dest` to `value`. Writes nothing if `dest` is null, if `count` is above
/// `destSize`, or if `destSize` is above half the address space (a negative size taken as
/// unsigned).
/// @return 0, EINVAL for a null `dest`, or ERANGE for a size
extern "C" __attribute__((visibility("default"))) int memset_s(void* dest, size_t destSize,
                                                               int value, size_t count);

#endif
