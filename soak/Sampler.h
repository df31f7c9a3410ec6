/// @file
/// What the process holds at one moment.
#ifndef ZOGLES_SOAK_SAMPLER_H
#define ZOGLES_SOAK_SAMPLER_H

struct Memory {
    long resident;     ///< KiB, the code of libraries included
    long anonymous;    ///< KiB of that which belong to no file: heap, stacks, the driver's buffers
    long addressSpace; ///< KiB
};

/// As the system sees it, with what malloc keeps in reserve.
Memory ReadMemory();

/// The same after malloc's reserves went back to the system. How large those are depends on chance,
/// and hides a small growth.
Memory ReadHeldMemory();

/// KiB that malloc has handed out and not taken back, of all arenas.
double HeapInUse();

int CountDescriptors();

/// How many GL objects live in the current context, as the driver itself tells.
int CountGlObjects();

#endif
