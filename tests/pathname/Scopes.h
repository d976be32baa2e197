// SPDX-License-Identifier: MIT
//
// State of the process that a test changes and puts back, and a folder of its own.
#ifndef KTQTBASE_TESTS_PATHNAME_SCOPES_H
#define KTQTBASE_TESTS_PATHNAME_SCOPES_H

#include "support/LocaleScope.h"

#include <KtQtBase/PathName.h>
#include <KtQtBase/VolumeDescriptor.h>

#include <QtCore/QTemporaryDir>

#include <fstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

using ktqtbase::test::GlobalLocaleScope;

// LC_CTYPE under which letters outside ASCII are letters and names convert.
class Utf8Scope : public ktqtbase::test::LocaleScope
{
public:
    Utf8Scope() : LocaleScope("C.UTF-8", LC_CTYPE) {}
};

// A drive that the process's list of volumes knows.
class ListedVolume : public CRbUiNTFSVolumeDescriptor
{
public:
    explicit ListedVolume(const wchar_t* name) : CRbUiNTFSVolumeDescriptor(CStdStr<wchar_t>(name))
    {
        volumeList.append(this);
    }
    ListedVolume(const ListedVolume&) = delete;
    ListedVolume& operator=(const ListedVolume&) = delete;
    ~ListedVolume() override { volumeList.removeAll(this); }
};

// A folder under a name of ASCII letters that is removed with all it holds.
class ScratchFolder
{
public:
    std::string path(const std::string& name = "") const
    {
        return m_folder.path().toStdString() + (name.empty() ? "" : "/" + name);
    }
    std::wstring widePath(const std::string& name = "") const
    {
        const std::string narrow = path(name);
        return std::wstring(narrow.begin(), narrow.end());
    }

    void addFile(const std::string& name, mode_t mode = 0644) const
    {
        std::ofstream(path(name)).put('x');
        ::chmod(path(name).c_str(), mode);
    }
    void addFolder(const std::string& name, mode_t mode = 0700) const
    {
        ::mkdir(path(name).c_str(), 0700);
        ::chmod(path(name).c_str(), mode);
    }
    bool holds(const std::string& name) const { return ::access(path(name).c_str(), F_OK) == 0; }

private:
    QTemporaryDir m_folder;
};

// The process's working directory.
class WorkingFolder
{
public:
    explicit WorkingFolder(const std::string& folder)
    {
        char before[4096];
        if (::getcwd(before, sizeof(before)))
            m_before = before;
        m_entered = ::chdir(folder.c_str()) == 0;
    }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder() { m_entered = ::chdir(m_before.c_str()) == 0; }

private:
    std::string m_before;
    bool m_entered = false;
};

// The prefix of an application's relative names, unparsed before and after.
class PrefixScope
{
public:
    PrefixScope() { g_CurrentDirPrefix.Empty(); }
    PrefixScope(const PrefixScope&) = delete;
    PrefixScope& operator=(const PrefixScope&) = delete;
    ~PrefixScope() { g_CurrentDirPrefix.Empty(); }
};

#endif
