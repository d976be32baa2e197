// SPDX-License-Identifier: MIT
#include "Drive.h"

Drive::Drive(const CStdStr<wchar_t>& localName) : CRbUiVolumeDescriptor(localName) {}

Drive::~Drive() = default;

bool Drive::ValidateFilename(const CStdStr<wchar_t>* name, bool) const
{
    return !name->empty();
}

bool Drive::ValidateSegment(const CStdStr<wchar_t>* segment, bool) const
{
    return !segment->empty();
}
