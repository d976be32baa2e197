// SPDX-License-Identifier: MIT
//
// A profile file in a folder of its own, removed with the object.
#ifndef KTQTBASE_TESTS_SUPPORT_SCRATCHPROFILE_H
#define KTQTBASE_TESTS_SUPPORT_SCRATCHPROFILE_H

#include "support/SlowProfileReader.h"

#include <QtCore/QTemporaryDir>

#include <string>

class ScratchProfile
{
public:
    explicit ScratchProfile(const std::string& bytes);

    char* name() { return m_name.data(); }
    const std::string& folder() const { return m_folderName; }
    std::wstring wideName() const;

    void rewrite(const std::string& bytes) const;
    std::string bytes() const;
    void remove() const;

    // Calls read_profile_string with a poisoned area, and fails the test if a byte after the text
    // is not zero or a byte after the area was touched.
    ProfileAnswer read(const ProfileQuestion& question);

private:
    QTemporaryDir m_folder;
    std::string m_folderName;
    std::string m_name;
};

// Asks about a file of any name, or about none for null; checks the area as above.
ProfileAnswer readProfile(char* fileName, const ProfileQuestion& question);

#endif
