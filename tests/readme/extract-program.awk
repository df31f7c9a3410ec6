# SPDX-FileCopyrightText: 2026 the authors of libzogles
# SPDX-License-Identifier: Apache-2.0
# Prints the first cpp block of a guide, with a line directive so that compiler messages name the line
# in the guide.
/^```$/ && found { exit }
found
/^```cpp$/ { found = 1; print "#line " NR + 1 " \"" FILENAME "\"" }
