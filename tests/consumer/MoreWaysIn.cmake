# SPDX-License-Identifier: MIT
# What is the same with each compiler and each sanitizer, so that one kind of build tests it. What
# needs a program that is not installed is left out.

add_installed_test(Package.AnswersEachFormOfFindPackage RunProject.cmake -DPROJECT=asking)
add_consumer_test(Package.HasALibraryFolderOfTwoLevels RunDeepFolder.cmake)
add_installed_test(Consumer.IsCompiledInManyWays RunProject.cmake -DPROJECT=variants)
add_installed_test(Consumer.SharesTheLibraryBetweenItsParts RunProject.cmake -DPROJECT=together)
add_consumer_test(Consumer.FetchesTheContent RunSubdirectory.cmake -DPROJECT=fetched)
add_consumer_test(Consumer.IsAddedByAFunction RunSubdirectory.cmake
    -DPROJECT=fetched -DBY_FUNCTION=ON)

find_program(KTQTBASE_MESON meson)
if(KTQTBASE_MESON)
    add_installed_test(Consumer.FindsTheInstalledLibraryByMeson RunMeson.cmake
        -DMESON=${KTQTBASE_MESON})
endif()

find_program(KTQTBASE_CLANG clang++)
find_path(KTQTBASE_GNUSTEP Foundation/Foundation.h PATHS /usr/include/GNUstep)
if(APPLE OR (KTQTBASE_CLANG AND KTQTBASE_GNUSTEP))
    add_installed_test(Consumer.HasObjectiveCSources RunProject.cmake -DPROJECT=objcxx)
endif()
