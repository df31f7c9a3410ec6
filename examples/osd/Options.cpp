// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Options.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr char usage[] = "usage: zogles-osd [--frames N] [--size WxH] [--out DIR] [--font FILE] "
                         "[--window]\n";

// Reads a number within limits, and moves past it.
bool ReadNumber(const char** text, int least, int most, int* value) {
    char* end = nullptr;
    const long number = strtol(*text, &end, 10);
    const bool isGood = end != *text && number >= least && number <= most;
    *value = isGood ? static_cast<int>(number) : least;
    *text = end;
    return isGood;
}

bool ReadSize(const char* text, Options* options) {
    return ReadNumber(&text, 320, 4096, &options->width) && *text++ == 'x' &&
           ReadNumber(&text, 180, 4096, &options->height) && *text == '\0';
}

bool ReadOption(const std::string& name, const char* value, Options* options) {
    if (name == "--frames") {
        return ReadNumber(&value, 1, 1000000, &options->frames) && *value == '\0';
    }
    if (name == "--size") {
        return ReadSize(value, options);
    }
    if (name == "--out") {
        options->outputFolder = value;
    } else if (name == "--font") {
        options->fontFile = value;
    }
    return (name == "--out" || name == "--font") && *value != '\0';
}

} // namespace

bool ReadOptions(int argc, char* argv[], Options* options) {
    for (int i = 1; i < argc; ++i) {
        const std::string name = argv[i];
        if (name == "--window") {
            options->staysOpen = true;
            continue;
        }
        const char* value = i + 1 < argc ? argv[++i] : "";
        if (!ReadOption(name, value, options)) {
            fprintf(stderr, "zogles-osd: invalid option: %s %s\n%s", name.c_str(), value, usage);
            return false;
        }
    }
    return true;
}
