#ifndef CONSUMER_NAMES_H
#define CONSUMER_NAMES_H

/// Instantiates standard templates for the program's classes. Ends the program.
void MakeOwnObjects();

#endif
