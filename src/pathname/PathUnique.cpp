// SPDX-License-Identifier: MIT
#include <KtQtBase/PathName.h>

#include "pathname/PathInternals.h"
#include "string/TextRoom.h"

#include <QtCore/QScopeGuard>

#include <algorithm>
#include <cstdlib>

namespace {

using WideText = CStdStr<wchar_t>;

constexpr int kTries = 200;
constexpr std::size_t kDigits = 5;
constexpr int kLongestName = ktqtbase::kTextRoom - 1;
constexpr int kLongestComponent = 1019;

bool isFree(CRbUiPathname& path)
{
    path.GetAttributes(path.m_pWork, path.m_pRelPath, &path.m_type);
    return path.m_type == PT_NOT_FOUND;
}

// Whether a name can be used as it is: nothing has it, or nothing can be asked about it.
bool isUsable(CRbUiPathname& path)
{
    if (ktqtbase::canBeLookedUp(path.m_type))
        return isFree(path);
    return path.m_type != ktqtbase::kKnownToExist;
}

// Cuts the last component off, also where it is all there is. A type 5 name cannot be cut, and
// counts as the folder as a whole.
void keepFolder(CRbUiPathname& path)
{
    const bool isBareName =
        path.m_category == PC_RELATIVE && path.m_pWork->find(path.m_separator) == WideText::npos;
    if (isBareName && ktqtbase::isParsed(path))
        path.m_pWork->clear();
    else
        path.Trim();
}

// Characters that are left for the stem after a folder, beside the digits, a dot and the
// extension; below 1 where there is no room.
int roomForStem(std::size_t folder, std::size_t extension)
{
    const int limit = std::min(kLongestName - static_cast<int>(folder), kLongestComponent);
    return limit - static_cast<int>(extension) - 6;
}

// Cuts the last component off and appends its stem, the place of the digits, and its extension.
//   digits    out: where the digits stand, counted from the end
// Result: false where the folder leaves no room.
bool appendCandidate(CRbUiPathname& path, std::size_t& digits)
{
    WideText stem;
    path.GetFilename(stem);
    if (stem.empty())
        stem = L"ktTmp";
    WideText extension;
    path.GetExtension(extension);
    keepFolder(path);
    const int room = roomForStem(path.m_pWork->size(), extension.size());
    if (room < 1)
        return false;

    stem.resize(std::min(stem.size(), static_cast<std::size_t>(room)));
    stem.append(kDigits, kZero);
    if (!extension.empty())
        stem.append(1, kPeriod).append(extension);
    path.Append(stem.c_str());
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
bool findFreeDigits(CRbUiPathname& path, std::size_t digits)
{
    for (int tries = 0; tries < kTries; ++tries) {
        writeRandomDigits(*path.m_pWork, digits);
        if (isUsable(path))
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
    auto emptied = qScopeGuard([&result] { result.Empty(); });
    const bool isAnswer = !result.m_pWork || (!force && isUsable(result));
    std::size_t digits = 0;
    if (!isAnswer && !appendCandidate(result, digits))
        return false;
    if (isAnswer || findFreeDigits(result, digits))
        emptied.dismiss();
    return true;
}
