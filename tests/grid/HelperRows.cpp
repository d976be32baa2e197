// SPDX-License-Identifier: MIT
//
// Strings, memory, volumes: sizes that are passed by themselves.
#include "grid/Grid.h"

#include <KtQtBase/Porting.h>
#include <KtQtBase/VolumeDescriptor.h>
#include <KtQtBase/WideString.h>

#include <algorithm>

namespace ktqtbase::test {

namespace {

// ---- Parts of a string -------------------------------------------------------------------------

const std::wstring kWhole = L"I\u0131\u0130\u00e9\U0001F600e";

void leftPart(const Cell& cell)
{
    const auto count = static_cast<int>(cell.size);
    const CStdStr<wchar_t> text = kWhole;
    EXPECT_EQ(text.Left(count), kWhole.substr(0, cell.size));
    EXPECT_EQ(text.Left(-count), L"");
}

void middlePart(const Cell& cell)
{
    const auto size = static_cast<int>(cell.size);
    const CStdStr<wchar_t> text = kWhole;
    EXPECT_EQ(text.Mid(0, size), kWhole.substr(0, cell.size));
    EXPECT_EQ(text.Mid(2, size), kWhole.substr(2, cell.size));
    EXPECT_EQ(text.Mid(-size, 2), kWhole.substr(0, 2));
    EXPECT_EQ(text.Mid(size, size), kWhole.substr(std::min(cell.size, kWhole.size()), cell.size));
}

// ---- Memory ------------------------------------------------------------------------------------

// Bytes of which no two neighbours are equal.
std::string differentBytes(std::size_t count)
{
    std::string bytes(count, '\0');
    for (std::size_t at = 0; at < count; ++at)
        bytes[at] = static_cast<char>(at % 251);
    return bytes;
}

void zeroBytes(const Cell& cell)
{
    const Output<char> place(cell, cell.size);
    KtPorting::ZeroMemory(place.data(), cell.size);
    place.expect(std::string(cell.size, '\0'));
}

void fillBytes(const Cell& cell)
{
    const Output<char> place(cell, cell.size);
    KtPorting::FillMemory(place.data(), cell.size, 0xE9);
    place.expect(std::string(cell.size, '\xE9'));
}

using CopyFunction = void (*)(void*, const void*, std::size_t);

void copyBytes(const Cell& cell, CopyFunction copy)
{
    const std::string bytes = differentBytes(cell.size);
    const Input<char> source(cell, bytes);
    const Output<char> place(cell, cell.size);
    copy(place.data(), source.data(), cell.size);
    place.expect(bytes);
}

// ---- Volumes -----------------------------------------------------------------------------------

void driveType(const Cell& cell)
{
    std::wstring text = L"FAT";
    const Input<wchar_t> name(cell, text + L'\0');
    FS_TYPE type = FS_CDFS;
    GetDriveTypeByVol(cell.isNull() ? nullptr : name.data(), type,
                      static_cast<unsigned int>(cell.size));
    const FS_TYPE known = cell.size == 12 ? FS_FAT : FS_VFAT;
    EXPECT_EQ(type, cell.isNull() ? FS_CDFS : known);
}

void fits(const Cell& cell)
{
    const CRbUiNTFSVolumeDescriptor volume(CStdStr<wchar_t>(L"C:"));
    EXPECT_TRUE(volume.WillFit(static_cast<unsigned int>(cell.size)));
}

// No memory has the greatest size, and the C library is not called with null.
GridRow ofMemory(const char* function, std::function<void(const Cell&)> call)
{
    return {function, "", Locales::One, kTrueSizes, always(100), kGreatestSize, std::move(call)};
}

} // namespace

std::vector<GridRow> helperRows()
{
    return {
        {"CStdStr::Left", "", Locales::All, kSizes, always(kWhole.size()), kGreatestInt, leftPart},
        {"CStdStr::Mid", "", Locales::All, kSizes, always(kWhole.size()), kGreatestInt, middlePart},
        ofMemory("ZeroMemory", zeroBytes),
        ofMemory("FillMemory", fillBytes),
        ofMemory("CopyMemory", [](const Cell& cell) { copyBytes(cell, KtPorting::CopyMemory); }),
        ofMemory("MoveMemory", [](const Cell& cell) { copyBytes(cell, KtPorting::MoveMemory); }),
        {"GetDriveTypeByVol", "", Locales::All, kAllColumns, always(12), kGreatestUnsigned,
         driveType},
        {"CRbUiVolumeDescriptor::WillFit", "", Locales::One, kSizes, always(0x7FFFFFFF),
         kGreatestUnsigned, fits},
    };
}

} // namespace ktqtbase::test
