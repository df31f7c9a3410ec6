// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// A surface whose default font exists and is small.
#ifndef ZOGLES_TESTS_SUPPORT_LIFECYCLEFIXTURE_H
#define ZOGLES_TESTS_SUPPORT_LIFECYCLEFIXTURE_H

#include "support/Calls.h"
#include "support/FakeFont.h"
#include "support/SurfaceFixture.h"

constexpr unsigned int allComponents = 0x3F;

class LifecycleFixture : public SurfaceFixture {
protected:
    void SetUp() override;

    /// The components that exist: "text blit bitmap frame rect pool ".
    std::string Components() const;

    /// Expects that everything of a binding is released.
    void ExpectUnbound() const;

    /// Binds, unless bound already, draws into a new buffer, reads it back and destroys it.
    void ExpectUsable();
};

constexpr Pixel filling = {10, 20, 30, 40};
inline Pixel Filled(int, int) {
    return filling;
}
inline Pixel Empty(int, int) {
    return {0, 0, 0, 0};
}

harness::LogLine SurfaceLine(const std::string& text, int priority = 6);

#endif
