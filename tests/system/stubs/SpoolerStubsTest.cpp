// SPDX-License-Identifier: MIT
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/SpoolerStubs.h>

#include "system/stubs/Poisoned.h"

#include <gtest/gtest.h>

namespace {

int g_printer = 0;
void* const kPrinter = &g_printer;
wchar_t g_name[] = L"Office printer";

} // namespace

TEST(OpenPrinter, WritesNoHandle)
{
    Poisoned<void*> printer;
    PRINTER_DEFAULTSW defaults = {};
    EXPECT_EQ(OpenPrinterW(g_name, printer.get(), &defaults), 0);
    EXPECT_TRUE(printer.isUntouched());
}

TEST(ClosePrinter, ReturnsZero)
{
    EXPECT_EQ(ClosePrinter(kPrinter), 0);
    EXPECT_EQ(ClosePrinter(nullptr), 0);
}

TEST(GetPrinter, WritesNeitherRecordNorSize)
{
    Poisoned<unsigned char[32]> record;
    Poisoned<unsigned int> needed;
    EXPECT_EQ(GetPrinterW(kPrinter, 2, *record.get(), 32, needed.get()), 0);
    EXPECT_TRUE(record.isUntouched());
    EXPECT_TRUE(needed.isUntouched());
}

TEST(EnumForms, WritesNeitherFormsNorCounts)
{
    Poisoned<unsigned char[32]> forms;
    Poisoned<unsigned int> needed;
    Poisoned<unsigned int> count;
    EXPECT_EQ(EnumFormsW(kPrinter, 1, *forms.get(), 32, needed.get(), count.get()), 0);
    EXPECT_TRUE(forms.isUntouched());
    EXPECT_TRUE(needed.isUntouched());
    EXPECT_TRUE(count.isUntouched());
}

TEST(DocumentProperties, WritesNoSettings)
{
    Poisoned<DEVMODEW> output;
    Poisoned<DEVMODEW> input;
    EXPECT_EQ(DocumentPropertiesW(nullptr, kPrinter, g_name, output.get(), input.get(),
                                  DM_OUT_BUFFER | DM_IN_BUFFER),
              0);
    EXPECT_TRUE(output.isUntouched());
    EXPECT_TRUE(input.isUntouched());
}

TEST(DocumentProperties, NeedsNoBytesForNullSettings)
{
    EXPECT_EQ(DocumentPropertiesW(nullptr, kPrinter, g_name, nullptr, nullptr, 0), 0);
}

TEST(DeviceCapabilities, IsZeroAndWritesNoItems)
{
    const DEVMODEW settings = {};
    Poisoned<wchar_t[64]> names;
    for (WORD capability : {DC_PAPERS, DC_PAPERSIZE, DC_PAPERNAMES})
        EXPECT_EQ(DeviceCapabilitiesW(g_name, L"port", capability, *names.get(), &settings), 0)
            << "capability " << capability;
    EXPECT_TRUE(names.isUntouched());
}
