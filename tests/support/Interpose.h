// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// How an interposed function is written.
#ifndef ZOGLES_TESTS_SUPPORT_INTERPOSE_H
#define ZOGLES_TESTS_SUPPORT_INTERPOSE_H

#include "support/Harness.h"

/// Opens the body of an interposed function: finds the `real` one, passes on calls that are not the
/// library's, and records the others. `isFailing` is true if a fault is set.
/// @param arguments in parentheses
#define INTERPOSE(name, arguments)                                                                 \
    static const auto real = reinterpret_cast<decltype(&name)>(harness::NextSymbol(#name));        \
    const harness::Outside outside;                                                                \
    if (outside.IsNested()) {                                                                      \
        return real arguments;                                                                     \
    }                                                                                              \
    const auto noteCall = [](auto... values) { harness::NoteCall(#name, values...); };             \
    noteCall arguments;                                                                            \
    [[maybe_unused]] const bool isFailing = harness::CountCall(#name)

/// A function that passes on its call. If a fault is set, it only returns `failure`.
#define PASS_ON_OR(failure, Return, name, parameters, arguments)                                   \
    extern "C" Return name parameters {                                                            \
        using Result = Return;                                                                     \
        INTERPOSE(name, arguments);                                                                \
        return isFailing ? Result(failure) : real arguments;                                       \
    }

/// The same. If a fault is set, it returns 0, null or nothing.
#define PASS_ON(Return, name, parameters, arguments)                                               \
    PASS_ON_OR(, Return, name, parameters, arguments)

/// A function that returns a new object of that kind, or 0 if a fault is set.
#define BEGIN_LIFE(Return, name, kind, parameters, arguments)                                      \
    extern "C" Return name parameters {                                                            \
        INTERPOSE(name, arguments);                                                                \
        const Return object = isFailing ? Return() : real arguments;                               \
        harness::AddLive(kind, object);                                                            \
        return object;                                                                             \
    }

/// A function that destroys an object of that kind. If a fault is set, it destroys the object, too,
/// and returns `failure`: no caller can try again.
#define END_LIFE(Return, name, kind, object, failure, parameters, arguments)                       \
    extern "C" Return name parameters {                                                            \
        INTERPOSE(name, arguments);                                                                \
        harness::RemoveLive(kind, object);                                                         \
        using Result = Return;                                                                     \
        return isFailing ? (real arguments, Result(failure)) : real arguments;                     \
    }

#endif
