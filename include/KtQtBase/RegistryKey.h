// SPDX-License-Identifier: MIT
//
// Registry keys, kept in the user's Qt settings.
//
//     CRegKey key;
//     key.Create(HKEY_CURRENT_USER, L"Software/App/Options");
//     key.SetValue(L"7", L"Count");
//
//     wchar_t text[11] = {};      // zeros: QueryValue writes no terminator
//     unsigned int room = 10;
//     key.QueryValue(text, L"Count", &room);
//
// There is no registry: a key's path is a group, a value's name a key in it, and every value a
// string of QSettings(QSettings::NativeFormat, QSettings::UserScope, "tarnex", "Marrowfield").
// Hives, access rights, value types and security attributes are ignored. Paths and names reach
// QSettings unchanged: a slash separates groups, a backslash is an ordinary character. Upper and
// lower case differ in both. A value that the user's settings do not have is looked for in those of
// the organisation and of the system, as QSettings does.
//
// One object belongs to one thread at a time. Different objects see each other's values.
#ifndef KTQTBASE_REGISTRYKEY_H
#define KTQTBASE_REGISTRYKEY_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/windows/Constants.h>
#include <KtQtBase/windows/Records.h>
#include <KtQtBase/windows/Scalars.h>

class QSettings;

// A key of the registry. Results are 0 (ERROR_SUCCESS) or an error.
class KTQTBASE_EXPORT CRegKey
{
public:
    // A key without a path: no value may be set or queried before Create.
    CRegKey();

    // Writes values that are still pending to the store.
    ~CRegKey();

    CRegKey(const CRegKey&) = delete;
    CRegKey& operator=(const CRegKey&) = delete;

    // Chooses the key that the object stands for. The store is not touched.
    //   hKeyParent       ignored: a path is the same key under every hive
    //   lpszKeyName      in: the path. The object keeps the pointer, not a copy: the text must live
    //                    as long as the object is used. Null counts as the empty path, the store's
    //                    top level.
    //   lpszClass, dwOptions, samDesired, lpSecAttr    ignored
    //   lpdwDisposition    not written
    // Result: 0.
    // Kept: the text is read at each use; a host that changes it works with another key from then
    // on.
    // On Windows: the key is created or opened; if that fails, the result is an error. Upper and
    // lower case do not differ.
    unsigned int Create(HKEY hKeyParent, const wchar_t* lpszKeyName, wchar_t* lpszClass = nullptr,
                        unsigned int dwOptions = 0, unsigned int samDesired = 0,
                        SECURITY_ATTRIBUTES* lpSecAttr = nullptr,
                        unsigned int* lpdwDisposition = nullptr);

    // Sets a value, which is written to the store later, at the latest by the destructor.
    //   lpszValue        in: the text, UTF-32; null counts as the empty text
    //   lpszValueName    in: the value's name; a null or empty one sets nothing
    //   bMulti           ignored
    //   nValueLen        ignored: the text ends at its first NUL
    // Result: 0, even if the store cannot be written. Where the disk becomes full meanwhile, Qt 5
    // may leave the store empty or cut.
    // On Windows: null names the key's default value, bMulti stores a list of texts, and upper and
    // lower case of a name do not differ.
    unsigned int SetValue(const wchar_t* lpszValue, const wchar_t* lpszValueName = nullptr,
                          bool bMulti = false, int nValueLen = -1);

    // Reads a value.
    //   szValue          out: the text, UTF-32, without a terminator; the caller fills the buffer
    //                    with zeros first. Null writes nothing.
    //   lpszValueName    in: the value's name; a null or empty one names no value
    //   pnChars          in: the room, not updated; null is no room. It is compared with the text's
    //                    UTF-16 length, in which characters above U+FFFF count twice.
    // Result: 0; or 0xFFFFFFFF, with nothing written, if the text is longer than the room. A
    // missing value is the empty text. A zero inside a stored text is written like any character.
    //   "7", room 10                  => L"7", 0
    //   "12345678901", room 10        => untouched, 0xFFFFFFFF
    //   no such value                 => untouched, 0
    // Kept: after 0xFFFFFFFF the object's next calls use the path inside the path itself, one level
    // deeper after each such failure; values that were set so would not be found otherwise. Use a
    // new object after a failure.
    // On Windows: the text is terminated, *pnChars becomes its length, a missing value and a small
    // buffer have errors of their own, nothing is nested, and upper and lower case of a name do not
    // differ.
    unsigned int QueryValue(wchar_t* szValue, const wchar_t* lpszValueName, unsigned int* pnChars);

    // Inert: returns 0; the object stays in use.
    // On Windows: the key is closed.
    KTQTBASE_INERT("returns 0; the object stays in use.")
    unsigned int Close();

    QSettings* m_pSettings;    // owned
    const wchar_t* m_pKeyName; // not owned: the path of the last Create, unset before it
};

#endif
