// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// A client that uses every operation at random, loses its window, and checks every result.
#ifndef ZOGLES_SOAK_CLIENT_H
#define ZOGLES_SOAK_CLIENT_H

#include "zogles/ZoGLDrawSurface.h"

#include <X11/Xlib.h>
#include <random>
#include <string>
#include <vector>

struct Counts {
    long frames;
    long texts;
    long fonts;
    long losses;
};

/// Throws std::runtime_error if a result differs from what the library's header documents.
class Client {
public:
    static constexpr unsigned int largestSide = 640;

    explicit Client(unsigned int seed);

    /// Does one random thing that clients do: mostly a frame.
    /// @param mayLose whether the window may be lost
    void Step(bool mayLose);

    /// Brings the client to the same state every time: bound, no buffers, one font, every component
    /// in use. Checks on the way that the whole pool of buffers is available.
    /// @param loses whether the window is lost first
    void Settle(bool loses);

    const Counts& GetCounts() const { return counts; }

private:
    struct Buffer {
        unsigned int handle;
        unsigned int width;
        unsigned int height;
    };

    void OpenWindow();
    void ResizeWindow(const tagZoRectInfo& size);
    void Bind();
    void BindOther();
    void Lose();
    void Frame();
    void DrawRect();
    void Blit();
    void DrawText();
    void ShowBitmap(unsigned int width, unsigned int height);
    void CreateBuffer(const tagZoRectInfo& size);
    void DestroyBuffer(size_t index);
    void LoadAnyFont();
    void LoadFont(const char* path, unsigned int size);
    void CheckPixel();

    unsigned int AnyBelow(unsigned int end) { return static_cast<unsigned int>(random() % end); }
    bool OneIn(unsigned int count) { return AnyBelow(count) == 0; }
    const Buffer& AnyBuffer();
    tagZoRectInfo AnyRect(unsigned int width, unsigned int height);
    tagZoRectInfo AnySize() { return AnyRect(largestSide, largestSide); }
    tagZoColorRGBA AnyColor();
    tagZoTextInfo AnyText();

    std::mt19937 random;
    Display* display; ///< stays open until the process ends, so that windows outlive the surface
    Window window = 0;
    ZoGLDrawSurface surface;
    std::vector<Buffer> buffers;
    std::u16string text;
    Counts counts = {};
};

#endif
