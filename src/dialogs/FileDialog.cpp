// SPDX-License-Identifier: MIT
#include <KtQtBase/FileDialog.h>

#include "dialogs/WidgetApplication.h"
#include "string/QtText.h"

#include <QtCore/QFileInfo>

#include <cstring>
#include <memory>
#include <utility>

namespace {

using ktqtbase::toQt;
using ktqtbase::toWide;

// Clears an object's field when the dialog in it dies first, since the field has room for a plain
// pointer only. It is a child of the dialog and is found by its name: a look at the children's
// types would need type information, which a host may be compiled without.
class DialogWatch : public QObject
{
public:
    DialogWatch(KtQtFileDialog& owner, QFileDialog* dialog)
        : QObject(dialog), m_owner(&owner), m_dialog(dialog)
    {
        setObjectName(name());
        // Before the host's own slots run, in which the object may die or start another run.
        connect(dialog, &QObject::destroyed, this, [this] { clearField(); });
    }

    // The host may have disconnected the dialog.
    ~DialogWatch() override { clearField(); }

    static QString name() { return QStringLiteral("KtQtFileDialog"); }

private:
    void clearField()
    {
        KtQtFileDialog* const owner = std::exchange(m_owner, nullptr);
        if (owner && owner->m_pDialog == m_dialog)
            owner->m_pDialog = nullptr;
    }

    KtQtFileDialog* m_owner;
    QFileDialog* m_dialog;
};

// A dialog that outlives its object must not know it any more.
void stopWatching(const QFileDialog* dialog)
{
    if (dialog)
        delete dialog->findChild<QObject*>(DialogWatch::name(), Qt::FindDirectChildrenOnly);
}

void readBlock(KtQtFileDialog& self)
{
    const OPENFILENAMEW& block = self.m_ofn;
    KtQFileDialgAttri& attri = self.m_attri;
    self.m_strCaption = toQt(block.lpstrTitle);
    self.m_strDirectory = toQt(block.lpstrInitialDir).replace(u'\\', u'/');
    attri.m_strNameFilter = toQt(block.lpstrFilter);
    attri.m_listNameFilter = attri.m_strNameFilter.split(QStringLiteral(";;"));
    attri.m_strSelectFile = toQt(block.lpstrFile);
    attri.m_strInitNameFilter =
        attri.m_listNameFilter.value(static_cast<int>(block.nFilterIndex - 1));
}

void setUp(QFileDialog& dialog, const KtQFileDialgAttri& attri)
{
    dialog.setAcceptMode(static_cast<QFileDialog::AcceptMode>(attri.m_nAcceptMode));
    dialog.selectFile(attri.m_strSelectFile);
    dialog.setFileMode(static_cast<QFileDialog::FileMode>(attri.m_nFileMode));
    dialog.setNameFilter(attri.m_strNameFilter);
    dialog.selectNameFilter(attri.m_strInitNameFilter);
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("File Format:"));
}

// A dialog for one run. Nobody holds one for which there is no memory to watch it.
QFileDialog* watchedDialog(KtQtFileDialog& self)
{
    auto dialog = std::make_unique<QFileDialog>(self.m_pParentWnd, self.m_strCaption,
                                                self.m_strDirectory, self.m_strFilter);
    new DialogWatch(self, dialog.get());
    return dialog.release();
}

void takeSelection(KtQtFileDialog& self, const QFileDialog& dialog)
{
    self.m_listSelectedFiles = dialog.selectedFiles();
    self.m_nSelectedCount = static_cast<std::uintptr_t>(self.m_listSelectedFiles.size());
    self.m_strSelectedNameFilter = dialog.selectedNameFilter();
    self.PraseFileInfo();
}

} // namespace

KtQFileDialgAttri::~KtQFileDialgAttri() = default;

KtQtFileDialog::KtQtFileDialog(bool bOpenFileDialog, const wchar_t* lpszDefExt,
                               const wchar_t* lpszFileName, unsigned int, const wchar_t* lpszFilter,
                               CWnd* pParentWnd, unsigned int, bool)
    : m_pParentWnd(pParentWnd), m_strFilter(toQt(lpszFilter))
{
    // An empty initialiser need not zero what lies between the members.
    std::memset(&m_ofn, 0, sizeof m_ofn);
    m_attri.m_nAcceptMode = bOpenFileDialog ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave;
    m_attri.m_strDefaultExt = toQt(lpszDefExt);
    m_attri.m_strFileName = toQt(lpszFileName);
    m_attri.m_nFileMode = bOpenFileDialog ? QFileDialog::ExistingFiles : QFileDialog::AnyFile;
}

KtQtFileDialog::~KtQtFileDialog()
{
    delete m_pDialog;
}

OPENFILENAMEW& KtQtFileDialog::GetOFN()
{
    return m_ofn;
}

int KtQtFileDialog::DoModal()
{
    readBlock(*this);
    if (!ktqtbase::hasWidgetApplication())
        return IDCANCEL;
    // The run's own pointer, since a host's handler may start another run meanwhile.
    QFileDialog* const dialog = watchedDialog(*this);
    stopWatching(m_pDialog);
    m_pDialog = dialog;
    setUp(*dialog, m_attri);
    // Kept: a dialog that is visible before exec() does not block the host's other windows. The
    // folder is set last, so that it replaces the selected file's.
    dialog->setVisible(true);
    dialog->setDirectory(m_strDirectory);
    // If the user did not accept, the dialog may be deleted already.
    if (dialog->exec() != QDialog::Accepted)
        return IDCANCEL;
    takeSelection(*this, *dialog);
    return IDOK;
}

void KtQtFileDialog::PraseFileInfo()
{
    if (m_listSelectedFiles.isEmpty())
        return;
    const QFileInfo file(m_listSelectedFiles.first());
    m_strPathName = toWide(m_listSelectedFiles.first());
    m_strFileName = toWide(file.fileName());
    m_strFileExt = toWide(file.suffix());
    m_ofn.nFilterIndex =
        static_cast<DWORD>(m_attri.m_listNameFilter.indexOf(m_strSelectedNameFilter) + 1);
}

CStdStr<wchar_t> KtQtFileDialog::GetPathName() const
{
    return m_strPathName;
}

CStdStr<wchar_t> KtQtFileDialog::GetFileName() const
{
    return m_strFileName;
}

CStdStr<wchar_t> KtQtFileDialog::GetFileExt() const
{
    return m_strFileExt;
}

POSITION KtQtFileDialog::GetStartPosition() const
{
    return reinterpret_cast<POSITION>(m_nSelectedCount);
}

CStdStr<wchar_t> KtQtFileDialog::GetNextPathName(POSITION& pos) const
{
    if (!pos || m_listSelectedFiles.isEmpty())
        return CStdStr<wchar_t>();
    const auto left = reinterpret_cast<std::uintptr_t>(pos);
    pos = reinterpret_cast<POSITION>(left - 1);
    if (left > m_nSelectedCount)
        return CStdStr<wchar_t>();
    return toWide(m_listSelectedFiles.value(static_cast<int>(m_nSelectedCount - left)));
}
