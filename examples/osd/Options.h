// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The command line's options.
#ifndef OSD_OPTIONS_H
#define OSD_OPTIONS_H

#include <string>

struct Options {
    int frames = 240;
    int width = 1280;
    int height = 720;
    std::string outputFolder = "out";
    std::string fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
    bool staysOpen = false;
};

/// False, with a message, if an option is wrong.
bool ReadOptions(int argc, char* argv[], Options* options);

#endif
