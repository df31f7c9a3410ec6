// What the examples share for --out; a program that saves no pictures needs none of it.
#ifndef EXAMPLES_COMMON_PICTURE_H
#define EXAMPLES_COMMON_PICTURE_H

/// What follows --out on the command line, else null. Ends the program when it reads anything else.
const char* FindOut(int argc, char* argv[]);

/// Saves what is drawn on the bound window and not refreshed yet: afterwards the pixels are gone.
bool SavePicture(const char* path, unsigned int width, unsigned int height);

/// The same for a transparent window, with a desktop behind it, as a compositor would show it.
bool SaveOverlay(const char* path, unsigned int width, unsigned int height);

#endif
