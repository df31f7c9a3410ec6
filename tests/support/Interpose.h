/// @file
/// How an interposed function is written.
#ifndef ZOGLES_TESTS_SUPPORT_INTERPOSE_H
#define ZOGLES_TESTS_SUPPORT_INTERPOSE_H

#include "support/Harness.h"

/// Opens the body of an interposed function: finds the `real` one, passes on what is not the
/// library's call, and notes the call. `isFailing` then says whether a fault is set.
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

/// A whole function that only passes on, and that yields 0, null or nothing where a fault is set.
#define PASS_ON(Return, name, parameters, arguments)                                               \
    extern "C" Return name parameters {                                                            \
        using Result = Return;                                                                     \
        INTERPOSE(name, arguments);                                                                \
        return isFailing ? Result() : real arguments;                                              \
    }

/// A whole function that ends the life of an object of that kind. Where a fault is set it does so
/// too, and reports the failure that is given: nobody can ask a second time.
#define END_LIFE(Return, name, kind, object, failure, parameters, arguments)                       \
    extern "C" Return name parameters {                                                            \
        INTERPOSE(name, arguments);                                                                \
        harness::RemoveLive(kind, reinterpret_cast<size_t>(object));                               \
        const Return result = real arguments;                                                      \
        return isFailing ? Return(failure) : result;                                               \
    }

#endif
