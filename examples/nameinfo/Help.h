// SPDX-License-Identifier: MIT
#ifndef NAMEINFO_HELP_H
#define NAMEINFO_HELP_H

extern const char* const kHelp;

#endif
