// SPDX-License-Identifier: MIT
//
// What each part of the program tells, and does for the others.
#pragma once

#include <KtQtBase/Messages.h>
#include <KtQtBase/PathName.h>

struct Part
{
    const void* volumes;
    HINSTANCE resources;
    int eventType;
    CRnUiPathname* (*makeName)();
    bool (*appendAndDelete)(CRnUiPathname* name);
    QEvent* (*makeMessage)();
};

// The function of each part that fills the record.
using DescribePart = void (*)(Part* part);
extern "C" __attribute__((visibility("default"))) void first(Part* part);
extern "C" __attribute__((visibility("default"))) void second(Part* part);
