// SPDX-License-Identifier: MIT
//
// A process that forks between calls of the library, and goes on in the child.
#include "support/LocaleScope.h"
#include "support/TemporaryFolder.h"

#include <KtQtBase/KtQtBase.h>

#include <QtCore/QSettings>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <gtest/gtest.h>

#include <cstdlib>

#include <unistd.h>

namespace {

using ktqtbase::test::TemporaryFolder;
using ktqtbase::test::wide;
using ktqtbase::test::writeFile;

// A store of the test's own, for every settings object made after it.
struct PrivateStore
{
    PrivateStore()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path().c_str());
    }

    const TemporaryFolder folder;
};

// What was made before the fork and is used behind it, by the child and by the parent.
class Fork : public testing::Test
{
protected:
    Fork()
    {
        writeFile(m_store.folder / "a.ini", "[S]\nk=5\n");
        m_key.Create(HKEY_CURRENT_USER, L"Software\\Fork");
        EXPECT_TRUE(ktuiSetCurrentDirPrefix());
        EXPECT_EQ(m_name.Parse(L"/no/such/file.txt", false), 0);
        EXPECT_EQ(m_key.SetValue(L"parent", L"Before"), 0u);
        m_image.fill(Qt::white);
        m_buffer.beginDraw();
    }
    ~Fork() override
    {
        m_buffer.endDraw();
        delete m_buffer.wrappedPainter();
    }

    void edit()
    {
        EXPECT_EQ(m_name.Append(L"x"), 0);
        EXPECT_STREQ(m_name.m_pWork->c_str(), L"/no/such/file.txtx");
        CRnUiPathname relative;
        EXPECT_EQ(relative.ParseRelative(L"file", &g_CurrentDirPrefix, false), 0);
    }

    void readFiles() const
    {
        wchar_t text[8] = {};
        GetPrivateProfileString(L"S", L"k", L"", text, 8, wide(m_store.folder / "a.ini").c_str());
        EXPECT_STREQ(text, L"5");
        wchar_t program[1024] = {};
        EXPECT_EQ(GetModuleFileName(nullptr, program, 1024), 0u);
    }

    void store(const wchar_t* name)
    {
        EXPECT_EQ(m_key.SetValue(L"value", name), 0u);
        wchar_t text[8] = {};
        unsigned int room = 7;
        EXPECT_EQ(m_key.QueryValue(text, L"Before", &room), 0u);
        EXPECT_STREQ(text, L"parent");
    }

    void draw()
    {
        m_buffer.fillRect(QRect(0, 0, 4, 4), Qt::black);
        EXPECT_EQ(m_image.pixelColor(2, 2), QColor(Qt::black));
        SendMessage(nullptr, 1, 2, 3);
    }

    void goOn(const wchar_t* name)
    {
        edit();
        readFiles();
        store(name);
        draw();
    }

    [[noreturn]] void goOnInChild()
    {
        goOn(L"Child");
        m_key.m_pSettings->sync();
        std::_Exit(HasFailure() ? 1 : 0);
    }

    QString stored(const char* name) const
    {
        m_key.m_pSettings->sync();
        return m_key.m_pSettings->value(name).toString();
    }

    const ktqtbase::test::LocaleScope m_utf8{"C.UTF-8", LC_CTYPE};
    const PrivateStore m_store;
    CRnUiPathname m_name;
    CRegKey m_key;
    QImage m_image{8, 8, QImage::Format_ARGB32_Premultiplied};
    KtQtPainterWrapper m_buffer{&m_image};
};

TEST_F(Fork, LetsChildAndParentGoOnWithTheSameObjects)
{
    EXPECT_EXIT(goOnInChild(), testing::ExitedWithCode(0), "");
    goOn(L"Parent");
    EXPECT_EQ(stored("Software\\Fork/Child"), QString("value"));
    EXPECT_EQ(stored("Software\\Fork/Parent"), QString("value"));
    EXPECT_EQ(stored("Software\\Fork/Before"), QString("parent"));
}

// Says when it dies, in which process.
class TellingVolume : public CRbUiNTFSVolumeDescriptor
{
public:
    TellingVolume() : CRbUiNTFSVolumeDescriptor(CStdStr<wchar_t>(L"C:")) {}
    ~TellingVolume() override { std::fputs("the volume dies", stderr); }
};

[[noreturn]] void leaveWithAVolume()
{
    volumeList.append(new TellingVolume);
    std::exit(0);
}

TEST_F(Fork, EndsTheGlobalsOfTheChildAlone)
{
    EXPECT_EXIT(leaveWithAVolume(), testing::ExitedWithCode(0), "^the volume dies$");
    EXPECT_TRUE(volumeList.isEmpty());
}

} // namespace
