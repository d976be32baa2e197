// SPDX-License-Identifier: MIT
//
// The fields of the file dialog and its attributes, in the order that hosts are compiled against.
#include <KtQtBase/FileDialog.h>

#include <cstddef>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace {

struct AttributesTwin
{
    int acceptMode = 0;
    QString defaultExtension;
    QString fileName;
    QString selectedFile;
    int fileMode = 0;
    QString nameFilter;
    QStringList nameFilterList;
    QString initialNameFilter;
};

struct DialogTwin
{
    QFileDialog* dialog = nullptr;
    QWidget* parent = nullptr;
    QString caption;
    QString directory;
    QString filter;
    AttributesTwin attributes;
    std::wstring pathName;
    std::wstring fileName;
    std::wstring fileExtension;
    std::size_t selectedCount = 0;
    QStringList selectedFiles;
    QString selectedNameFilter;
    OPENFILENAMEW block = {};
};

template<class Object, class Field>
std::ptrdiff_t distance(const Object& object, const Field& field)
{
    return reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&object);
}

TEST(FileDialogLayout, HasTheAttributesInTheirOrder)
{
    const KtQFileDialgAttri attri;
    const AttributesTwin twin;
    EXPECT_EQ(distance(attri, attri.m_nAcceptMode), distance(twin, twin.acceptMode));
    EXPECT_EQ(distance(attri, attri.m_strDefaultExt), distance(twin, twin.defaultExtension));
    EXPECT_EQ(distance(attri, attri.m_strFileName), distance(twin, twin.fileName));
    EXPECT_EQ(distance(attri, attri.m_strSelectFile), distance(twin, twin.selectedFile));
    EXPECT_EQ(distance(attri, attri.m_nFileMode), distance(twin, twin.fileMode));
    EXPECT_EQ(distance(attri, attri.m_strNameFilter), distance(twin, twin.nameFilter));
    EXPECT_EQ(distance(attri, attri.m_listNameFilter), distance(twin, twin.nameFilterList));
    EXPECT_EQ(distance(attri, attri.m_strInitNameFilter), distance(twin, twin.initialNameFilter));
    EXPECT_EQ(sizeof attri, sizeof twin);
}

TEST(FileDialogLayout, HasTheDialogsQtFieldsInTheirOrder)
{
    const KtQtFileDialog dialog(true);
    const DialogTwin twin;
    EXPECT_EQ(distance(dialog, dialog.m_pDialog), 0);
    EXPECT_EQ(distance(dialog, dialog.m_pParentWnd), distance(twin, twin.parent));
    EXPECT_EQ(distance(dialog, dialog.m_strCaption), distance(twin, twin.caption));
    EXPECT_EQ(distance(dialog, dialog.m_strDirectory), distance(twin, twin.directory));
    EXPECT_EQ(distance(dialog, dialog.m_strFilter), distance(twin, twin.filter));
    EXPECT_EQ(distance(dialog, dialog.m_attri), distance(twin, twin.attributes));
}

TEST(FileDialogLayout, HasTheSelectionAndTheBlockBehindThem)
{
    const KtQtFileDialog dialog(true);
    const DialogTwin twin;
    EXPECT_EQ(distance(dialog, dialog.m_strPathName), distance(twin, twin.pathName));
    EXPECT_EQ(distance(dialog, dialog.m_strFileName), distance(twin, twin.fileName));
    EXPECT_EQ(distance(dialog, dialog.m_strFileExt), distance(twin, twin.fileExtension));
    EXPECT_EQ(distance(dialog, dialog.m_nSelectedCount), distance(twin, twin.selectedCount));
    EXPECT_EQ(distance(dialog, dialog.m_listSelectedFiles), distance(twin, twin.selectedFiles));
    EXPECT_EQ(distance(dialog, dialog.m_strSelectedNameFilter),
              distance(twin, twin.selectedNameFilter));
    EXPECT_EQ(distance(dialog, dialog.m_ofn), distance(twin, twin.block));
    EXPECT_EQ(sizeof dialog, sizeof twin);
}

TEST(FileDialogLayout, HasAPlainPointerToTheDialog)
{
    EXPECT_TRUE((std::is_same_v<decltype(KtQtFileDialog::m_pDialog), QFileDialog*>));
}

} // namespace
