// SPDX-License-Identifier: MIT
//
// A string to be filled that is one of the object's own, and a text that lies in one of them: the
// results are those of a string and a text elsewhere.
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"

#include <fstream>

namespace {

using Text = CStdStr<wchar_t>;

struct ObjectRow
{
    const char* name;
    path_category category;
    path_type type;
    const wchar_t* work;
    const wchar_t* prefix;
};

const ObjectRow kObjects[] = {
    {"relative", PC_RELATIVE, PT_FILE, L"docs/archive.tar.gz", L"no such/folder.x"},
    {"closed prefix", PC_RELATIVE, PT_DIRECTORY, L"f.txt", L"/no/such/"},
    {"bare name with a drive inside", PC_RELATIVE, PT_FILE, L"xxc:abcdefgh.txt", L"c:no such"},
    {"long folders", PC_RELATIVE, PT_FILE, L"aa/bb/cc/dd/file", L"a/long/prefix/of/many/folders"},
    {"long component", PC_RELATIVE, PT_NOT_FOUND, L"d/abcdefghijklmnopqrstuvwxyz.txt", L"p"},
    {"rooted", PC_ROOTED, PT_FILE, L"/no such/d/a.txt", L""},
    {"drive", PC_DRIVE, PT_FILE, L"C:/aa/bb/cc/dd/file.abc", L"not used"},
    {"pattern", PC_RELATIVE, PT_WILDCARD, L"d/*.txt;txt", L"p/q;abc"},
    {"quotes and spaces", PC_RELATIVE, PT_FILE, L"  \" a b.c \"  ", L" \"p\" "},
    {"empty", PC_RELATIVE, PT_NOT_FOUND, L"", L""},
    {"type of a host", PC_RELATIVE, kTypeOfHost, L"d/f.txt", L"/no/such"},
    {"unparsed", PC_RELATIVE, PT_NONE, L"d/f.txt", L"/no/such"},
};

class OwnPath : public HandMadePath
{
public:
    explicit OwnPath(const ObjectRow& row) : HandMadePath(row.category, row.work, row.type)
    {
        setPrefix(row.prefix);
    }
};

using Field = CStdStr<wchar_t>* CRbUiPathname::*;

const Field kFields[] = {&CRbUiPathname::m_pWork, &CRbUiPathname::m_pRelPath};

// ---- Strings to be filled ----------------------------------------------------------------------

struct FillRow
{
    const char* name;
    int (*fill)(const CRbUiPathname&, Text& out);
};

template<void (CRbUiPathname::*get)(Text&) const>
int component(const CRbUiPathname& path, Text& out)
{
    (path.*get)(out);
    return 0;
}

template<int width>
int display(const CRbUiPathname& path, Text& out)
{
    path.GetDisplayName(out, width);
    return 0;
}

int fullPath(const CRbUiPathname& path, Text& out)
{
    return path.GetFullPath(out);
}

int fileSystem(const CRbUiPathname& path, Text& out)
{
    return path.GetFileSystem(out);
}

// The list lies in the work string, too.
int firstExtension(const CRbUiPathname& path, Text& out)
{
    path.GetFirstExtInList(path.GetPathString(), out);
    return 0;
}

int firstExtensionOfNull(const CRbUiPathname& path, Text& out)
{
    path.GetFirstExtInList(nullptr, out);
    return 0;
}

const FillRow kFills[] = {
    {"GetBasename", component<&CRbUiPathname::GetBasename>},
    {"GetFilename", component<&CRbUiPathname::GetFilename>},
    {"GetExtension", component<&CRbUiPathname::GetExtension>},
    {"GetFullPath", fullPath},
    {"GetDisplayName, whole", display<-1>},
    {"GetDisplayName, 12", display<12>},
    {"GetDisplayName, 15", display<15>},
    {"GetDisplayName, 100", display<100>},
    {"GetFirstExtInList", firstExtension},
    {"GetFirstExtInList, null", firstExtensionOfNull},
    {"GetFileSystem", fileSystem},
};

void expectFilledAsAnother(const ObjectRow& object, const FillRow& row, Field field)
{
    const OwnPath twin(object);
    Text separate(*(twin.*field));
    const int result = row.fill(twin, separate);
    OwnPath path(object);
    EXPECT_EQ(row.fill(path, *(path.*field)), result);
    EXPECT_EQ(std::wstring(*(path.*field)), std::wstring(separate));
    // Nothing else of the object changes.
    (path.*field)->assign(*(twin.*field));
    EXPECT_EQ(fieldsOf(path), fieldsOf(twin));
}

// ---- Texts -------------------------------------------------------------------------------------

struct OwnTextRow
{
    const char* name;
    int (*use)(CRbUiPathname&, const wchar_t* text);
};

template<class Result, Result (CRbUiPathname::*function)(const wchar_t*)>
int call(CRbUiPathname& path, const wchar_t* text)
{
    return (path.*function)(text);
}

template<bool (CRbUiPathname::*function)(const wchar_t*) const>
int ask(CRbUiPathname& path, const wchar_t* text)
{
    return (path.*function)(text);
}

int parse(CRbUiPathname& path, const wchar_t* text)
{
    return path.Parse(text, false);
}

int parseInABase(CRbUiPathname& path, const wchar_t* text)
{
    const HandMadePath base(PC_ROOTED, L"/no such/base", PT_DIRECTORY);
    return path.ParseRelative(text, &base, false);
}

int parseInItself(CRbUiPathname& path, const wchar_t* text)
{
    return path.ParseRelative(text, &path, false);
}

int removeIfMatch(CRbUiPathname& path, const wchar_t* list)
{
    path.RemoveExtensionIfMatch(list);
    return 0;
}

// Renames a file of the name, if there can be one in the working directory.
int rename(CRbUiPathname& path, const wchar_t* text)
{
    std::ofstream(std::string(path.m_pWork->begin(), path.m_pWork->end())).put('x');
    return path.Rename(text);
}

const OwnTextRow kTexts[] = {
    {"Parse", parse},
    {"ParseRelative", parseInABase},
    {"ParseRelative, base itself", parseInItself},
    {"Append", call<int, &CRbUiPathname::Append>},
    {"AppendComponent", call<int, &CRbUiPathname::AppendComponent>},
    {"VerifyExtension", ask<&CRbUiPathname::VerifyExtension>},
    {"ReplaceExtensionAlways", call<int, &CRbUiPathname::ReplaceExtensionAlways>},
    {"ReplaceExtensionIfNoMatch", call<int, &CRbUiPathname::ReplaceExtensionIfNoMatch>},
    {"AddExtensionAlways", call<int, &CRbUiPathname::AddExtensionAlways>},
    {"AddExtensionIfNoMatch", call<int, &CRbUiPathname::AddExtensionIfNoMatch>},
    {"RemoveExtensionIfMatch", removeIfMatch},
    {"PathMatch", ask<&CRbUiPathname::PathMatch>},
    {"Rename", rename},
};

// From every place in the field, its terminator among them.
void expectUsedAsAnother(const ObjectRow& object, const OwnTextRow& row, Field field)
{
    const std::wstring texts = *(OwnPath(object).*field);
    for (std::size_t place = 0; place <= texts.size(); ++place) {
        SCOPED_TRACE(place);
        OwnPath twin(object);
        const std::wstring separate = texts.substr(place);
        const int result = row.use(twin, separate.c_str());
        OwnPath path(object);
        EXPECT_EQ(row.use(path, (path.*field)->c_str() + place), result);
        EXPECT_EQ(fieldsOf(path), fieldsOf(twin));
    }
}

} // namespace

TEST(OwnStrings, AreFilledAsAnyOther)
{
    for (const ObjectRow& object : kObjects) {
        for (const FillRow& row : kFills) {
            SCOPED_TRACE(testing::Message() << row.name << " of " << object.name);
            for (Field field : kFields)
                expectFilledAsAnother(object, row, field);
        }
    }
}

TEST(OwnStrings, HoldTextsAsAnyOther)
{
    const ScratchFolder scratch;
    const WorkingFolder inside(scratch.path());
    for (const ObjectRow& object : kObjects) {
        for (const OwnTextRow& row : kTexts) {
            SCOPED_TRACE(testing::Message() << row.name << " on " << object.name);
            for (Field field : kFields)
                expectUsedAsAnother(object, row, field);
        }
    }
}
