// SPDX-License-Identifier: MIT
//
// Every operation of the path family with its first allocation failing, then its second, and so on
// until it succeeds: the exception passes, and the objects stay consistent.
#include "pathname/AllocationSweep.h"
#include "pathname/HandMadePath.h"
#include "pathname/Scopes.h"
#include "support/FailingNew.h"

namespace {

const wchar_t* const kLongText = L"a text that no string keeps inside itself.extension;other";

class PathAllocation : public testing::Test
{
protected:
    PathAllocation()
    {
        EXPECT_EQ(g_CurrentDirPrefix.ParseRelative(
                      L"/no/such/prefix that no string keeps inside itself/", nullptr, false),
                  0);
    }

    static void sweepAll(std::initializer_list<Operation> operations)
    {
        for (const Operation& operation : operations) {
            int failures = 0;
            for (const std::wstring& sample : sampleNames()) {
                SCOPED_TRACE(testing::Message() << operation.name << ": " << sample);
                failures += sweep(operation, sample);
            }
            EXPECT_TRUE(failures > 0 || !operation.allocates) << operation.name;
        }
    }

    const Utf8Scope m_utf8;
    const PrefixScope m_prefix;
    const ListedVolume m_volume{L"C:"};
};

TEST_F(PathAllocation, LeavesNoEditHalfDone)
{
    sweepAll({
        {"TrimSlash", After::BothStay, false, [](auto& name, auto&) { name.TrimSlash(); }},
        {"Trim", After::BothStay, false, [](auto& name, auto&) { name.Trim(); }},
        {"TrimComponent", After::BothStay, false, [](auto& name, auto&) { name.TrimComponent(); }},
        {"Append", After::BothStay, true, [](auto& name, auto&) { name.Append(kLongText); }},
        {"Append own text", After::BothStay, true,
         [](auto& name, auto&) { name.Append(name.m_pWork->c_str() + 1); }},
        {"AppendComponent", After::BothStay, true,
         [](auto& name, auto&) { name.AppendComponent(kLongText); }},
        {"AppendComponent of null", After::BothStay, true,
         [](auto& name, auto&) { name.AppendComponent(nullptr); }},
        {"AppendComponent own text", After::BothStay, true,
         [](auto& name, auto&) { name.AppendComponent(name.m_pWork->c_str()); }},
        {"AppendSlash", After::BothStay, true, [](auto& name, auto&) { name.AppendSlash(); }},
    });
}

TEST_F(PathAllocation, LeavesNoExtensionHalfReplaced)
{
    sweepAll({
        {"ReplaceExtensionAlways", After::BothStay, true,
         [](auto& name, auto&) { name.ReplaceExtensionAlways(kLongText); }},
        {"ReplaceExtensionAlways by its own text", After::BothStay, true,
         [](auto& name, auto&) { name.ReplaceExtensionAlways(name.m_pWork->c_str()); }},
        {"ReplaceExtensionIfNoMatch", After::BothStay, true,
         [](auto& name, auto&) { name.ReplaceExtensionIfNoMatch(kLongText); }},
        {"AddExtensionAlways", After::BothStay, true,
         [](auto& name, auto&) { name.AddExtensionAlways(kLongText); }},
        {"AddExtensionAlways of its own text", After::BothStay, true,
         [](auto& name, auto&) { name.AddExtensionAlways(name.m_pWork->c_str()); }},
        {"AddExtensionIfNoMatch", After::BothStay, true,
         [](auto& name, auto&) { name.AddExtensionIfNoMatch(kLongText); }},
        {"RemoveExtensionIfMatch", After::BothStay, true,
         [](auto& name, auto&) { name.RemoveExtensionIfMatch(L"extension"); }},
        {"RemoveExtensionAlways", After::BothStay, false,
         [](auto& name, auto&) { name.RemoveExtensionAlways(); }},
    });
}

TEST_F(PathAllocation, LeavesCaseBlanksAndTypeAlone)
{
    sweepAll({
        {"RemoveSpaces", After::BothStay, true, [](auto& name, auto&) { name.RemoveSpaces(); }},
        {"BaseToLower", After::BothStay, true, [](auto& name, auto&) { name.BaseToLower(); }},
        {"BaseToUpper", After::BothStay, true, [](auto& name, auto&) { name.BaseToUpper(); }},
        {"Exists", After::BothStay, false, [](auto& name, auto&) { name.Exists(); }},
        {"Rename", After::BothStay, true, [](auto& name, auto&) { name.Rename(kLongText); }},
        {"OpenReadOnly", After::BothStay, true,
         [](auto& name, auto&) {
             void* handle = nullptr;
             name.OpenReadOnly(handle);
         }},
        {"OpenWriteOnly", After::BothStay, true,
         [](auto& name, auto&) {
             void* handle = nullptr;
             name.OpenWriteOnly(handle);
         }},
        {"Status", After::BothStay, true, [](auto& name, auto&) { name.Status(); }},
        {"PathMatch", After::BothStay, true,
         [](auto& name, auto& other) { name.PathMatch(&other); }},
        {"PathMatch of its own text", After::BothStay, true,
         [](auto& name, auto&) { name.PathMatch(name.GetPathString()); }},
        {"FindVolumeDescriptor", After::BothStay, false,
         [](auto& name, auto&) { name.FindVolumeDescriptor(*name.m_pWork); }},
    });
}

TEST_F(PathAllocation, LeavesANameAsItWasByEveryQuestion)
{
    sweepAll({
        {"GetBasename", After::BothStay, true,
         [](auto& name, auto&) {
             CStdStr<wchar_t> out;
             name.GetBasename(out);
         }},
        {"GetFilename", After::BothStay, true,
         [](auto& name, auto&) {
             CStdStr<wchar_t> out;
             name.GetFilename(out);
         }},
        {"GetExtension", After::BothStay, true,
         [](auto& name, auto&) {
             CStdStr<wchar_t> out;
             name.GetExtension(out);
         }},
        {"GetFullPath", After::BothStay, true,
         [](auto& name, auto&) {
             CStdStr<wchar_t> out;
             name.GetFullPath(out);
         }},
        {"GetFullPath into a buffer", After::BothStay, true,
         [](auto& name, auto&) {
             wchar_t out[1024];
             name.GetFullPath(out);
         }},
        {"GetDisplayName", After::BothStay, true,
         [](auto& name, auto&) {
             CStdStr<wchar_t> out;
             for (int width : {-1, 12, 40, 60})
                 name.GetDisplayName(out, width);
         }},
        {"VerifyExtension", After::BothStay, true,
         [](auto& name, auto&) { name.VerifyExtension(L"abc;extension"); }},
        {"GetFirstExtInList", After::BothStay, true,
         [](auto& name, auto&) {
             CStdStr<wchar_t> out;
             name.GetFirstExtInList(kLongText, out);
         }},
        {"GetFullUNCPath", After::BothStay, false,
         [](auto& name, auto&) {
             CStdStr<wchar_t> out;
             name.GetFullUNCPath(out);
         }},
    });
}

TEST_F(PathAllocation, EmptiesTheResultOfACopy)
{
    sweepAll({
        {"AssignCopy", After::OtherIsEmpty, true,
         [](auto& name, auto& other) { other.AssignCopy(name); }},
        {"AssignCopy of the base", After::OtherIsEmpty, true,
         [](auto& name, auto& other) { other.CRbUiPathname::AssignCopy(name); }},
        {"copy constructor", After::BothStay, true,
         [](auto& name, auto&) { const CRnUiPathname copy(name); }},
        {"GetParent", After::OtherIsEmpty, true,
         [](auto& name, auto& other) { name.GetParent(other); }},
        {"GetParent into itself", After::EmptyInTime, true,
         [](auto& name, auto&) { name.GetParent(name); }},
        {"GetUniqueName", After::OtherIsEmpty, true,
         [](auto& name, auto& other) { name.GetUniqueName(other, false); }},
        {"GetUniqueName by force", After::OtherIsEmpty, true,
         [](auto& name, auto& other) { name.GetUniqueName(other, true); }},
        {"GetUniqueName into itself", After::EmptyInTime, true,
         [](auto& name, auto&) { name.GetUniqueName(name, true); }},
    });
}

TEST_F(PathAllocation, EmptiesANameWhoseParseFailsBehindItsReset)
{
    sweepAll({
        {"ParseRelative", After::EmptyInTime, true,
         [](auto& name, auto& other) { name.ParseRelative(kLongText, &other, false); }},
        {"ParseRelative of its own text", After::EmptyInTime, true,
         [](auto& name, auto& other) { name.ParseRelative(name.GetPathString(), &other, false); }},
        {"ParseRelative of a bad name", After::EmptyInTime, true,
         [](auto& name, auto&) { name.ParseRelative(kLongText, nullptr, false); }},
        {"ParseRelative of a quoted name", After::EmptyInTime, true,
         [](auto& name, auto&) {
             name.ParseRelative(L" \"c:\\a name that no string keeps inside itself\" ", nullptr,
                                false);
         }},
        {"Parse", After::EmptyInTime, true,
         [](auto& name, auto&) { name.Parse(kLongText, false); }},
        {"Parse of its own text", After::EmptyInTime, false,
         [](auto& name, auto&) { name.Parse(name.GetPathString(), false); }},
        {"Parse of the base", After::EmptyInTime, true,
         [](auto& name, auto&) { name.CRbUiPathname::Parse(name.GetPathString(), false); }},
        {"ProcessPathStatus", After::EmptyOrChanged, true,
         [](auto& name, auto&) { ProcessPathStatus(name, &name.m_pWork); }},
        {"ProcessParentStatus", After::EmptyOrChanged, true,
         [](auto& name, auto&) {
             int status = 0;
             ProcessParentStatus(name, &name.m_pWork, status);
         }},
    });
}

TEST_F(PathAllocation, EmptiesANameWhoseLookUpFails)
{
    const std::wstring text = L"/" + std::wstring(1100, L'n');
    int failures = 0;
    for (;; ++failures) {
        CRnUiPathname name;
        ASSERT_EQ(name.ParseRelative(L"/no/such", nullptr, false), 0);
        if (!failingnew::failsAt(failures + 1,
                                 [&] { name.ParseRelative(text.c_str(), nullptr, false); }))
            break;
        expectUnparsed(name);
    }
    // The work string grows, and the look-up takes a wide text and its conversion.
    EXPECT_EQ(failures, 3);
}

TEST_F(PathAllocation, EmptiesTheParentOfABareNameWhosePrefixCannotBeCopied)
{
    HandMadePath name(PC_RELATIVE, L"bare");
    name.setPrefix(L"/" + std::wstring(200, L'p') + L"/");
    CRbUiPathname parent;
    ASSERT_EQ(parent.ParseRelative(L"a/b", &g_CurrentDirPrefix, false), 0);
    ASSERT_TRUE(failingnew::failsAt(1, [&] { name.GetParent(parent); }));
    expectUnparsed(parent);
    EXPECT_EQ(workOf(name), L"bare");
}

TEST_F(PathAllocation, EmptiesThePrefixWhereItCannotBeSet)
{
    const ktqtbase::test::LocaleScope utf8("C.UTF-8", LC_CTYPE);
    // Parsed, but without room for any folder that this program may be in.
    const auto parseShortPrefix = [] {
        EXPECT_EQ(g_CurrentDirPrefix.ParseRelative(L"/no", nullptr, false), 0);
        g_CurrentDirPrefix.m_pWork->shrink_to_fit();
    };
    int n = 1;
    parseShortPrefix();
    while (failingnew::failsAt(n, [] { ktuiSetCurrentDirPrefix(); })) {
        expectUnparsed(g_CurrentDirPrefix);
        parseShortPrefix();
        ++n;
    }
    EXPECT_GT(n, 1);
    EXPECT_EQ(workOf(g_CurrentDirPrefix).back(), L'/');
}

TEST_F(PathAllocation, RenamesNoFileHalf)
{
    const ScratchFolder folder;
    folder.addFile("a");
    const std::wstring target = folder.widePath("b");
    HandMadePath name(PC_ROOTED, folder.widePath("a"));
    const auto before = fieldsOf(name);
    int n = 1;
    while (failingnew::failsAt(n, [&] { name.Rename(target.c_str()); })) {
        EXPECT_EQ(fieldsOf(name), before);
        EXPECT_TRUE(folder.holds("a"));
        ++n;
    }
    EXPECT_GT(n, 1);
    EXPECT_EQ(workOf(name), target);
    EXPECT_TRUE(folder.holds("b"));
}

TEST_F(PathAllocation, KeepsTheTypeOfAFileThatCannotBeAskedFor)
{
    HandMadePath name(PC_ROOTED, L"/" + std::wstring(1100, L'n'), PT_DIRECTORY);
    int n = 1;
    while (failingnew::failsAt(n, [&] { name.Exists(); })) {
        EXPECT_EQ(name.m_type, PT_DIRECTORY);
        ++n;
    }
    EXPECT_GT(n, 1);
    EXPECT_EQ(name.m_type, PT_NOT_FOUND);
}

TEST_F(PathAllocation, LeavesTheArgumentsOfFreeFunctions)
{
    const CStdStr<wchar_t> text(L" \"a text that no string keeps inside itself\" ");
    const CStdStr<wchar_t>* pointer = &text;
    for (int n = 1; n < 8; ++n) {
        CStdStr<wchar_t> copy(text);
        copy.shrink_to_fit();
        CStdStr<wchar_t>* made = nullptr;
        path_type type = PT_FILE;
        path_type* typePointer = &type;
        failingnew::failsAt(n, [&] { CRbUiPathname::Unquote(copy); });
        EXPECT_TRUE(copy == text || copy.front() == L'a');
        if (failingnew::failsAt(n, [&] { GetRelPath(PC_ROOTED, &text, &made, nullptr); })) {
            EXPECT_EQ(made, nullptr);
        }
        ReleaseCStrPtr(&made);
        if (failingnew::failsAt(n, [&] { IsPathType(text, &type); })) {
            EXPECT_EQ(type, PT_FILE);
        }
        if (failingnew::failsAt(n, [&] { GetAttByPath(&pointer, &pointer, &typePointer); })) {
            EXPECT_EQ(type, PT_FILE);
        }
    }
}

TEST_F(PathAllocation, LeavesAVolumeNameAsItWas)
{
    CStdStr<wchar_t> name(L"a volume");
    name.append(name.capacity() - name.size(), L'e');
    const std::wstring former = name;
    const CRbUiPathname path;
    EXPECT_TRUE(failingnew::failsAt(1, [&] { path.GetFileSystem(name); }));
    EXPECT_EQ(std::wstring(name), former);
    EXPECT_FALSE(failingnew::failsAt(2, [&] { path.GetFileSystem(name); }));
    EXPECT_EQ(std::wstring(name), former + L'/');
}

TEST_F(PathAllocation, PassesThroughTheNamingRules)
{
    const CStdStr<wchar_t> name(L"a name that no string keeps inside itself");
    for (int n = 1; n < 4; ++n) {
        failingnew::failsAt(n, [&] { m_volume.ValidateFilename(&name, false); });
        failingnew::failsAt(n, [&] { m_volume.ValidateSegment(&name, true); });
        EXPECT_TRUE(m_volume.ValidateFilename(&name, false));
        EXPECT_TRUE(m_volume.ValidateSegment(&name, true));
    }
}

} // namespace
