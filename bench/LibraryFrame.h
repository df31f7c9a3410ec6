// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The whole frame, drawn by libzogles.
#ifndef ZOGLES_BENCH_LIBRARYFRAME_H
#define ZOGLES_BENCH_LIBRARYFRAME_H

#include "Frame.h"

/// Holds the frame as the library's records, so that drawing it only calls the library.
class LibraryFrame {
public:
    /// @param composedBuffer,source the buffer to present, and the one to copy from
    LibraryFrame(const Frame& usedFrame, unsigned int composedBuffer, unsigned int source)
        : frame(usedFrame),
          composed(composedBuffer), bitmap{frame.bitmap.data(), ZO_FORMAT_RGBA8888, 0,         0,
                                           bitmapArea.width,    bitmapArea.height,  bitmapArea} {
        for (const Copy& copy : frame.copies) {
            blits.push_back({source, composed, copy.src, copy.dst});
        }
        for (const TextLine& line : frame.lines) {
            texts.emplace_back(line.text.begin(), line.text.end());
        }
        for (size_t i = 0; i < texts.size(); ++i) {
            requests.push_back({texts[i].c_str(),
                                static_cast<unsigned int>(texts[i].size()),
                                frame.lines[i].color,
                                {},
                                0,
                                fontSize,
                                0,
                                0,
                                0});
            starts.push_back({frame.lines[i].x, frame.lines[i].baseline, 0, 0});
        }
    }
    ~LibraryFrame() = default;
    LibraryFrame(const LibraryFrame&) = delete;
    LibraryFrame& operator=(const LibraryFrame&) = delete;

    static void Fill(ZoGLDrawSurface& surface, unsigned int buffer,
                     const std::vector<Tile>& tiles) {
        for (const Tile& tile : tiles) {
            surface.ZoDrawRect(buffer, &tile.area, &tile.color);
        }
    }

    void Draw(ZoGLDrawSurface& surface) const {
        Fill(surface, composed, frame.rectangles);
        for (const tagZoBlitInfo& blit : blits) {
            surface.ZoBlit(&blit);
        }
        for (size_t i = 0; i < requests.size(); ++i) {
            surface.ZoDrawText(composed, &requests[i], &starts[i]);
        }
        surface.ZoDisplayBitmap(&bitmap);
        surface.ZoDisplayFBO(composed, &wholeWindow, &wholeWindow);
    }

    const Frame& frame;
    const unsigned int composed;
    const tagZoBitmapInfo bitmap;
    std::vector<tagZoBlitInfo> blits;
    std::vector<std::u16string> texts;
    std::vector<tagZoTextInfo> requests;
    std::vector<tagZoRectInfo> starts;
};

#endif
