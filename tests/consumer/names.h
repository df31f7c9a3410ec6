#ifndef CONSUMER_NAMES_H
#define CONSUMER_NAMES_H

/// Compiles the standard library's templates for the program's own classes; ends the program.
void MakeOwnObjects();

#endif
