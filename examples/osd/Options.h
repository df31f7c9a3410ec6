// What the command line asks for.
#ifndef OSD_OPTIONS_H
#define OSD_OPTIONS_H

#include <string>

struct Options {
    int frames = 240;
    int width = 1280;
    int height = 720;
    std::string outputFolder = "out";
    std::string fontFile;
    bool staysOpen = false;
    bool wantsHelp = false;
};

/// False, with a line on stderr, when an option is not understood.
bool ReadOptions(int argc, char* argv[], Options* options);

void PrintHelp();

/// The font to draw with: the one asked for, else the platform's, else that of a Debian package.
std::string ChooseFont(const Options& options);

#endif
