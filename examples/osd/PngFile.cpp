#include "PngFile.h"

#include <cstdio>
#include <png.h>

bool WritePng(const std::string& path, const Picture& picture) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    if (png_image_write_to_file(&image, path.c_str(), 0, picture.pixels.data(), 0, nullptr) == 0) {
        fprintf(stderr, "%s: %s\n", path.c_str(), image.message);
        return false;
    }
    return true;
}
