// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"

#include <algorithm>
#include <cstdlib>

namespace {

using WideText = CStdStr<wchar_t>;

constexpr int kTries = 200;
constexpr int kTypeKnownToExist = 5;
constexpr std::size_t kDigits = 5;
constexpr std::size_t kLongestName = 1023;
constexpr std::size_t kLongestBase = 1019;

bool canBeLookedUp(path_type type)
{
    return type == PT_NOT_FOUND || type == PT_FILE || type == PT_DIRECTORY;
}

bool isFree(CRbUiPathname& name)
{
    name.GetAttributes(name.m_pWork, name.m_pRelPath, &name.m_type);
    return name.m_type == PT_NOT_FOUND;
}

// Whether a name can be used as it is: nothing has it, or nothing can be asked about it.
bool isUsable(CRbUiPathname& name)
{
    if (canBeLookedUp(name.m_type))
        return isFree(name);
    return name.m_type != static_cast<path_type>(kTypeKnownToExist);
}

// Cuts the last component off, also where it is all there is.
void keepFolder(CRbUiPathname& name)
{
    const bool isBareName =
        name.m_category == PC_RELATIVE && name.m_pWork->find(name.m_separator) == WideText::npos;
    if (isBareName)
        name.m_pWork->clear();
    else
        name.Trim();
}

// Characters that are left for the stem behind a folder, beside the digits, a dot and the
// extension; below 1 where there is no room.
int roomForStem(std::size_t folder, std::size_t extension)
{
    const auto limit = std::min(static_cast<int>(kLongestName) - static_cast<int>(folder),
                                static_cast<int>(kLongestBase));
    return limit - static_cast<int>(extension) - 6;
}

// Cuts the last component off and appends its stem, the place of the digits, and its extension.
//   digits    out: where the digits stand, counted from the end
// Result: false where the folder leaves no room.
bool appendCandidate(CRbUiPathname& name, std::size_t& digits)
{
    WideText stem;
    name.GetFilename(stem);
    if (stem.empty())
        stem = L"ktTmp";
    WideText extension;
    name.GetExtension(extension);
    keepFolder(name);
    const int room = roomForStem(name.m_pWork->size(), extension.size());
    if (room < 1)
        return false;

    stem.resize(std::min(stem.size(), static_cast<std::size_t>(room)));
    stem.append(kDigits, kZero);
    if (!extension.empty())
        stem.append(1, kPeriod).append(extension);
    name.Append(stem.c_str());
    // The place of a dot is counted also where there is none.
    digits = kDigits + 1 + extension.size();
    return true;
}

void writeRandomDigits(WideText& work, std::size_t digits)
{
    int number = std::rand() % 100000;
    // A name of type 5 was neither cut nor appended to, and may be shorter than the digits.
    if (work.size() < digits)
        return;
    const std::size_t position = work.size() - digits;
    for (std::size_t i = kDigits; i-- > 0; number /= 10)
        work[position + i] = static_cast<wchar_t>(kZero + number % 10);
}

// Tries random digits until nothing has the name. Result: false where all tries were used up.
bool findFreeDigits(CRbUiPathname& name, std::size_t digits)
{
    for (int tries = 0; tries < kTries; ++tries) {
        writeRandomDigits(*name.m_pWork, digits);
        if (isUsable(name))
            return true;
    }
    return false;
}

} // namespace

bool CRbUiPathname::GetUniqueName(CRbUiPathname& result, bool force) const
{
    if (m_type == PT_NONE)
        return false;
    if (&result == this) {
        CRbUiPathname self;
        self.AssignCopy(*this);
        return self.GetUniqueName(result, force);
    }
    result.AssignCopy(*this);
    ktqtbase::EmptyUnlessFinished guard(result);
    const bool isAnswer = !result.m_pWork || (!force && isUsable(result));
    std::size_t digits = 0;
    if (!isAnswer && !appendCandidate(result, digits))
        return false;
    if (isAnswer || findFreeDigits(result, digits))
        guard.finished();
    return true;
}
