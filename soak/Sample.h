// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// What the process holds at one moment.
#ifndef ZOGLES_SOAK_SAMPLE_H
#define ZOGLES_SOAK_SAMPLE_H

struct Sample {
    long resident;   ///< KiB of RAM, code of libraries included
    long held;       ///< KiB that belong to no file, without malloc's reserves
    double heap;     ///< KiB that malloc has handed out
    int descriptors; ///< open files
    int objects;     ///< GL objects of the current context, as the driver counts them
};

Sample TakeSample();

#endif
