// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "platform/MemsetS.h"

#include <cerrno>
#include <cstdint>
#include <cstring>

extern "C" int memset_s(void* dest, size_t destSize, int value, size_t count) {
    if (dest == nullptr) {
        return EINVAL;
    }
    if (destSize > SIZE_MAX / 2 || count > destSize) {
        return ERANGE;
    }
    memset(dest, value, count);
    return 0;
}
