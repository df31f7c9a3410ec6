// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#ifndef CONSUMER_NAMES_H
#define CONSUMER_NAMES_H

/// Instantiates standard templates for the program's classes. Ends the program.
void MakeOwnObjects();

#endif
