// SPDX-License-Identifier: MIT
//
// The main function of test programs that need a Qt application: fonts, widgets and screens.
#include <QtWidgets/QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    // Tests are listed at build time too, where no platform plug-in may be usable.
    if (::testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS();
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
