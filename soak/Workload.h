/// @file
/// A client that uses the whole library without end, and checks every result.
#ifndef ZOGLES_SOAK_WORKLOAD_H
#define ZOGLES_SOAK_WORKLOAD_H

#include "Windows.h"

#include <random>
#include <stdexcept>
#include <string>
#include <vector>

/// The library did something else than its header says.
class Surprise : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Counts {
    long frames;
    long losses;
    long rebindings;
    long texts;
    long fonts;
    long buffers;
    long refusals; ///< erroneous calls, each refused with the code that it should be
    long pixels;   ///< checks of drawn pixels
};

class Workload {
public:
    /// @param damagedFont a file that is no font
    Workload(Windows& windows, unsigned int seed, std::string damagedFont);

    /// Whether the window is lost now and then, and at every rest, from now on.
    void SetLosing(bool value) { isLosing = value; }

    /// One random thing that clients do: mostly a frame.
    void Step();

    /// Brings the client to the same state every time: bound, no buffer, one font, every component
    /// in use. Sees on the way that the whole pool of buffers can be had.
    void Settle();

    const Counts& GetCounts() const { return counts; }

private:
    struct Buffer {
        unsigned int handle;
        unsigned int width;
        unsigned int height;
    };

    void Frame();
    void DrawRect();
    void Blit();
    void DrawText();
    void Measure();
    void ShowBitmap(unsigned int width, unsigned int height);
    void CreateBuffer(unsigned int width, unsigned int height);
    void CreateAnyBuffer();
    void FillPool();
    void DestroyBuffer(size_t index);
    void DestroyBuffers();
    void LoseWindow();
    void BindWhileBound();
    void LoadAnyFont();
    void LoadFont(const char* path, unsigned int size);
    void CallInError();
    void CheckPixels();

    void Expect(const char* what, int code, int expected);
    unsigned int Below(unsigned int end) { return static_cast<unsigned int>(random() % end); }
    bool OneIn(unsigned int count) { return Below(count) == 0; }
    const Buffer& AnyBuffer();
    tagZoRectInfo AnyRect(unsigned int width, unsigned int height);
    tagZoColorRGBA AnyColor();
    tagZoTextInfo AnyText();

    Windows& windows;
    std::mt19937 random;
    std::string damagedFont;
    ZoGLDrawSurface surface;
    bool isLosing;
    int window;
    std::vector<Buffer> buffers;
    std::u16string text;
    Counts counts;
};

#endif
