// Writes pictures as PNG files.
#ifndef OSD_PNG_FILE_H
#define OSD_PNG_FILE_H

#include <string>
#include <vector>

/// Pixels of three bytes, red, green and blue, rows from the top.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> pixels;
};

/// Reports on stderr when the file cannot be written.
bool WritePng(const std::string& path, const Picture& picture);

#endif
