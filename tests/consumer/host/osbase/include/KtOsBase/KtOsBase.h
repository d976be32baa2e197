// SPDX-License-Identifier: MIT
//
// The OS-base library of an imaginary host. Two results are unlike those of the bundled one, so
// that a caller can tell which of the two it was linked with.
#pragma once

wchar_t* _wcsinc(const wchar_t* text);
unsigned int _wcsnextc(const wchar_t* text);
int swprintf(wchar_t* buffer, const wchar_t* format, ...);

// Result: always 0, done, and nothing is renamed.
int _wrename(const wchar_t* oldName, const wchar_t* newName);

// Result: always 42.
int IsDBCSLeadByte(unsigned char byte);
