#include "Options.h"

#include <cstdio>
#include <cstdlib>
#include <getopt.h>
#include <unistd.h>

namespace {

constexpr char usage[] = "usage: zogles-osd [--frames N] [--size WxH] [--out DIR] [--font FILE] "
                         "[--window] [--help]\n";

constexpr int leastWidth = 320;
constexpr int leastHeight = 180;
constexpr int mostPixels = 4096;
constexpr int mostFrames = 1000000;

// A whole number within limits, which ends at the character `end`.
bool ReadNumber(const char* text, char end, int least, int most, int* value, const char** rest) {
    char* stop = nullptr;
    const long number = strtol(text, &stop, 10);
    if (stop == text || *stop != end || number < least || number > most) {
        return false;
    }
    *value = static_cast<int>(number);
    *rest = stop;
    return true;
}

bool ReadSize(const char* text, Options* options) {
    const char* rest = nullptr;
    return ReadNumber(text, 'x', leastWidth, mostPixels, &options->width, &rest) &&
           ReadNumber(rest + 1, '\0', leastHeight, mostPixels, &options->height, &rest);
}

bool ReadFrames(const char* text, Options* options) {
    const char* rest = nullptr;
    return ReadNumber(text, '\0', 1, mostFrames, &options->frames, &rest);
}

bool ReadOption(int option, const char* value, Options* options) {
    switch (option) {
    case 'n':
        return ReadFrames(value, options);
    case 's':
        return ReadSize(value, options);
    case 'o':
        options->outputFolder = value;
        return !options->outputFolder.empty();
    case 'f':
        options->fontFile = value;
        return !options->fontFile.empty();
    case 'w':
        options->staysOpen = true;
        return true;
    case 'h':
        options->wantsHelp = true;
        return true;
    default:
        return false;
    }
}

bool Complain() {
    fputs(usage, stderr);
    return false;
}

} // namespace

bool ReadOptions(int argc, char* argv[], Options* options) {
    const option known[] = {{"frames", required_argument, nullptr, 'n'},
                            {"size", required_argument, nullptr, 's'},
                            {"out", required_argument, nullptr, 'o'},
                            {"font", required_argument, nullptr, 'f'},
                            {"window", no_argument, nullptr, 'w'},
                            {"help", no_argument, nullptr, 'h'},
                            {nullptr, 0, nullptr, 0}};
    int index = 0;
    for (int found = getopt_long(argc, argv, "", known, &index); found != -1;
         found = getopt_long(argc, argv, "", known, &index)) {
        if (found == '?') {
            return Complain(); // getopt has said which option
        }
        if (!ReadOption(found, optarg, options)) {
            fprintf(stderr, "zogles-osd: --%s does not take '%s'\n", known[index].name, optarg);
            return Complain();
        }
    }
    if (optind < argc) {
        fprintf(stderr, "zogles-osd: '%s' is no option\n", argv[optind]);
        return Complain();
    }
    return true;
}

void PrintHelp() {
    fputs(usage, stdout);
    printf("\nDraws a television's on-screen display in a window and writes pictures of it.\n\n"
           "  --frames N   frames to draw for measuring their cost, 1 to %d (240)\n"
           "  --size WxH   size of the window, %dx%d to %dx%d (1280x720)\n"
           "  --out DIR    where the pictures go (out)\n"
           "  --font FILE  font to draw with\n"
           "  --window     stay open afterwards and animate until Esc is pressed\n"
           "  --help       show this text\n",
           mostFrames, leastWidth, leastHeight, mostPixels, mostPixels);
}

std::string ChooseFont(const Options& options) {
    constexpr char platformFont[] = "/system/fonts/CC3.ttf";
    constexpr char packagedFont[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
    if (!options.fontFile.empty()) {
        return options.fontFile;
    }
    return access(platformFont, R_OK) == 0 ? platformFont : packagedFont;
}
