// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Example.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

void Check(const char* what, int code) {
    if (code != ZO_SUCCESS) {
        fprintf(stderr, "%s failed with code %d\n", what, code);
        exit(EXIT_FAILURE);
    }
}

Arguments ReadArguments(int argc, char* argv[], unsigned int milliseconds) {
    Arguments arguments = {nullptr, nullptr, milliseconds};
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (strcmp(argv[i], "--out") == 0 && hasValue) {
            arguments.out = argv[++i];
        } else if (strcmp(argv[i], "--at") == 0 && hasValue) {
            arguments.milliseconds = static_cast<unsigned int>(strtoul(argv[++i], nullptr, 10));
        } else if (argv[i][0] != '-' && arguments.file == nullptr) {
            arguments.file = argv[i];
        } else {
            fputs("the options are --out FILE.png and --at MILLISECONDS\n", stderr);
            exit(EXIT_FAILURE);
        }
    }
    return arguments;
}

tagZoTextInfo ToText(std::u16string_view text, const tagZoColorRGBA& color) {
    tagZoTextInfo info = {};
    info.text = text.data();
    info.length = static_cast<unsigned int>(text.size());
    info.color = color;
    info.fontSize = standardSize;
    return info;
}
