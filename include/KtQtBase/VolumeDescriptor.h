// SPDX-License-Identifier: MIT
//
// Volumes: the naming rules of one volume, and the process-wide list of volumes in which path
// objects look up their drive.
//
//     class DriveVolume : public CRbUiVolumeDescriptor { ... the two validations ... };
//     volumeList.append(new DriveVolume(CStdStr<wchar_t>(L"C:")));
//
// A descriptor never asks the operating system about its volume: the file system's name is always
// "nofilesystem", the free space is a fixed large number, and every write fits.
#ifndef KTQTBASE_VOLUMEDESCRIPTOR_H
#define KTQTBASE_VOLUMEDESCRIPTOR_H

#include <KtQtBase/Export.h>
#include <KtQtBase/Inert.h>
#include <KtQtBase/WideString.h>

#include <QtCore/QList>

#include <cstdio>

// ---- Characters --------------------------------------------------------------------------------

extern KTQTBASE_EXPORT const wchar_t kBackslash;
extern KTQTBASE_EXPORT const wchar_t kColon;
extern KTQTBASE_EXPORT const wchar_t kDoubleQuote;
extern KTQTBASE_EXPORT const wchar_t kEOS; // the terminator, 0
extern KTQTBASE_EXPORT const wchar_t kPeriod;
extern KTQTBASE_EXPORT const wchar_t kSlash;
extern KTQTBASE_EXPORT const wchar_t kSpace;
extern KTQTBASE_EXPORT const wchar_t kAsterisk;
extern KTQTBASE_EXPORT const wchar_t kQuestionmark;
extern KTQTBASE_EXPORT const wchar_t kZero; // the digit

// ---- File systems ------------------------------------------------------------------------------

// The file system of a volume. Values without a name can be stored and mean nothing.
enum FS_TYPE : int
{
    FS_NOFS = 0,
    FS_NTFS = 2,
    FS_FAT = 3, // 8.3 names: the longest component has 12 characters
    FS_VFAT = 4,
    FS_HPFS = 5,
    FS_CDFS = 6,
    FS_NFS = 8
};

// Writes the label of a file system and a line feed to a stream.
//   stream    in: where the stream's pointer lies
//   type      in: the file system
// Result: what fwprintf returns: the characters written, or a negative number. A null stream gives
// -1.
//   FS_NOFS => "NOFS\n"   FS_NTFS => "NTFS\n"   FS_FAT  => "FAT\n"    FS_VFAT => "VFAT\n"
//   FS_HPFS => "HPFS\n"   FS_CDFS => "CDFS\n"   FS_NFS  => "UFS\n"    all else => "???\n"
// Kept: FS_NFS is labelled "UFS". Part of the interface.
KTQTBASE_EXPORT int dump_file_type(FILE** stream, FS_TYPE type);

// Classifies a file system's name.
//   fsName             in: the name, zero-terminated
//   type               out: the file system; untouched if fsName is null
//   maxComponentLen    in: longest component in characters; 12 tells FAT from VFAT
//   L"NTFS"                     => FS_NTFS
//   L"HPFS"                     => FS_HPFS
//   L"CDFS"                     => FS_CDFS
//   L"NFS", L"myNFS3"           => FS_NFS
//   L"FAT" or anything else     => FS_FAT if maxComponentLen is 12, else FS_VFAT
//   L"ntfs", 255                => FS_VFAT
// Kept: case counts, so a lower-case name is not known. Part of the interface.
KTQTBASE_EXPORT void GetDriveTypeByVol(wchar_t* fsName, FS_TYPE& type,
                                       unsigned int maxComponentLen);

// ---- Volume descriptor -------------------------------------------------------------------------

// The naming rules of one volume. Abstract: a derived class adds the two validations.
// The order of the virtual functions and of the fields is part of the interface.
class KTQTBASE_EXPORT CRbUiVolumeDescriptor
{
public:
    // Leaves every field unset. A derived class sets all of them before use, and the three owned
    // pointers (m_pLocalName, m_pAuxName, m_pConnectionName) in any case before destruction.
    CRbUiVolumeDescriptor();

    // Describes the volume of a local name.
    //   localName    in: drive or share name such as L"C:", copied as it is
    // Sets every field except m_fsType and bit 7 of m_flags, which keep what the memory held.
    // Kept: a host that sets bit 7 in the memory before the construction finds it set afterwards. A
    // compiler that sees the constructor of a derived class together with that write may drop the
    // write: g++ keeps it with -fno-lifetime-dse.
    explicit CRbUiVolumeDescriptor(const CStdStr<wchar_t>& localName);

    // Deletes the three owned strings.
    virtual ~CRbUiVolumeDescriptor();

    CRbUiVolumeDescriptor(const CRbUiVolumeDescriptor&) = delete;
    CRbUiVolumeDescriptor& operator=(const CRbUiVolumeDescriptor&) = delete;

    // Whether the volume is read-only: bit 5 of m_flags.
    virtual bool CheckReadOnly() const;

    // Whether a text may be used as a whole name, or as one segment of a path, on this volume.
    //   name, segment     in: the text
    //   allowWildcards    in: whether the text may hold wildcards, * and ?
    virtual bool ValidateFilename(const CStdStr<wchar_t>* name, bool allowWildcards) const = 0;
    virtual bool ValidateSegment(const CStdStr<wchar_t>* segment, bool allowWildcards) const = 0;

    // Whether names that differ in case are different names: bit 6 of m_flags.
    virtual bool IsCaseSensitive() const;

    // Always true: names keep the case that they were made with.
    virtual bool PreservesCase() const;

    // Always true.
    virtual bool AllowsCaseSensitiveLookup() const;

    // Changes a name to the volume's case convention; this class leaves it as it is. Every parse of
    // a name on the volume calls it.
    //   name    in/out: the work string, with its drive and with the path object's separator
    virtual void VolCase(CStdStr<wchar_t>& name) const;

    // Whether two names are the same name on this volume: compared exactly if IsCaseSensitive(),
    // else in lower case by the classic locale, up to the terminator of b.
    //   a, b    in: the names
    // Null: the first form gives false for either; the second only for b, and its a must not be
    // null.
    //   L"Name", L"nAME"  => true, on a case-sensitive volume false
    // Kept: the two forms differ for a null a. Part of the interface.
    virtual bool VolMatch(const wchar_t* a, const CStdStr<wchar_t>* b) const;
    virtual bool VolMatch(const CStdStr<wchar_t>* a, const CStdStr<wchar_t>* b) const;

    // The local name, owned by the descriptor.
    virtual const CStdStr<wchar_t>* GetLocalName() const;

    // Free space in bytes. Result: 0x7FFFFFFF always.
    // On Windows: the volume is asked.
    virtual unsigned int GetVolFreeSpace() const;

    // Whether so many bytes fit. Result: true always.
    // On Windows: the volume is asked.
    virtual bool WillFit(unsigned int bytes) const;

    // Whether the volume has the file system of m_fsType: true for a descriptor that was made from
    // a name (bit 0 of m_flags) or is trusted by its creator (bit 4). Else false, since the file
    // system's name is never known here.
    virtual bool VolumeValid() const;

    // Sets m_pConnectionName to the name of a share's connection, which is always
    // "GetConnectionName Failed".
    // Kept: a second call does not delete the earlier string, so that pointers to it stay valid.
    // On Windows: the name of the network connection.
    void GetConnectionName();

    // The position of a character.
    //   s     in: the text
    //   ch    in: the character
    // Result: the first position, or 0xFFFFFFFF. If m_bUseCSearch is set, the search ends at the
    // first terminator in the text, and a search for the terminator finds it.
    unsigned int Find(const CStdStr<wchar_t>& s, wchar_t ch) const;

    // Whether a character is a forbidden control character. Result: false always.
    bool IsControl(int ch) const;

    FS_TYPE m_fsType;                    // not set by this class
    unsigned char m_flags;               // bits 0 and 4 valid, 5 read-only, 6 case-sensitive
    CStdStr<wchar_t>* m_pLocalName;      // owned
    int m_maxComponentLen;               // longest segment; 255 unless the creator sets it
    int m_maxPathLen;                    // longest whole name; 1023
    wchar_t m_separator;                 // backslash
    bool m_bUseCSearch;                  // Find uses wcschr
    int m_reserved;                      // 0; never read
    CStdStr<wchar_t>* m_pAuxName;        // owned, null; for the creator's use
    CStdStr<wchar_t>* m_pConnectionName; // owned, null until GetConnectionName
    const wchar_t* m_pUncPrefix;         // two backslashes, not owned
};

// ---- NTFS rules --------------------------------------------------------------------------------

// A volume with the naming rules of NTFS and its separator, the backslash. Reserved device names,
// dots or blanks at the end, and empty names are allowed. Forbidden characters are looked for up to
// the first terminator; length, colon and doubled backslash are checked in the whole string. A null
// name must not be passed.
class KTQTBASE_EXPORT CRbUiNTFSVolumeDescriptor : public CRbUiVolumeDescriptor
{
public:
    // Describes the volume of a local name, as the base does, and sets m_fsType to FS_NTFS.
    explicit CRbUiNTFSVolumeDescriptor(const CStdStr<wchar_t>& localName);
    ~CRbUiNTFSVolumeDescriptor() override;

    // Whether a text may be used as a whole name.
    //   L"C:\\dir\\f.txt", L"\\\\srv\\share", L""                   => true
    //   L"1:\\f", L"abc:f", L"a:b:c", L"a\\\\b", L"a/b", L"a|b", L"<a>"  => false
    //   L"*.t?t"                                                    => allowWildcards
    //   1,023 characters => true     1,024 (more than m_maxPathLen) => false
    // Kept: the slash is refused, although path objects use it as their separator: these are the
    // rules of a volume with backslashes. Check a name before it is parsed.
    bool ValidateFilename(const CStdStr<wchar_t>* name, bool allowWildcards) const override;

    // Whether a text may be used as one segment of a path: no longer than m_maxComponentLen, and
    // without slash, backslash and colon.
    //   L"f.txt", L"" => true     L"a\\b", L"a/b", L"C:", L"a\"b" => false     L"*" =>
    //   allowWildcards
    bool ValidateSegment(const CStdStr<wchar_t>* segment, bool allowWildcards) const override;
};

// The rule of drive letters by itself.
//   name    in: the name; a null one holds no colon
//   ch      in: the character before the colon, as a code point
// Result: true if name holds no colon; if its last colon is at index 1, whether ch is a letter for
// the process's LC_CTYPE; else false.
KTQTBASE_EXPORT bool ValidateVolChar(const CStdStr<wchar_t>* name, int ch);

// ---- The list of volumes -----------------------------------------------------------------------

// The volumes of this process, in the order in which the host appended them; empty at load. The
// host fills the list before it parses names, from one thread. The descriptors are deleted when the
// library is unloaded; null entries are skipped.
extern KTQTBASE_EXPORT QList<CRbUiVolumeDescriptor*> volumeList;

// Deletes every descriptor of volumeList when it is destroyed. The library holds one such object;
// a host makes none.
class KTQTBASE_EXPORT CDelVolumeList
{
public:
    ~CDelVolumeList();
};

// ---- Functions without a counterpart here ------------------------------------------------------

// Inert: the outputs stay untouched.
// On Windows: they receive the file system's name, its longest component and its case rule.
KTQTBASE_INERT("the outputs stay untouched.")
KTQTBASE_EXPORT void GetVolumeInfo(CStdStr<wchar_t>& volume, wchar_t* fsName,
                                   unsigned int& maxComponentLen, bool& caseSensitive);

// Inert: returns true; the outputs stay untouched.
// On Windows: they receive the file system's name and the connection's.
KTQTBASE_INERT("returns true; the outputs stay untouched.")
KTQTBASE_EXPORT bool GetVolumeInfo(CStdStr<wchar_t> volume, wchar_t* fsName,
                                   CStdStr<wchar_t>* connection, int flags, unsigned int size);

// Inert: no effect.
// On Windows: the volume part of a name is split into its parts.
KTQTBASE_INERT("no effect.")
KTQTBASE_EXPORT void ParseVolumeStr(CStdStr<wchar_t>& volume, char* text, unsigned int size);

// Inert: no effect.
// On Windows: the volume's narrow name is prepared.
KTQTBASE_INERT("no effect.")
KTQTBASE_EXPORT void InitVolumeChar(CStdStr<wchar_t>& volume, char* text);

// Inert: returns 0.
// On Windows: the code page for narrow names is chosen.
KTQTBASE_INERT("returns 0.")
KTQTBASE_EXPORT int InitModeMultiByte();

// Deletes a string and forgets it, as ReleaseCStrPtr does.
//   pp    in/out: where the owning pointer lies; set to null. Null stays as it is.
KTQTBASE_EXPORT void ReleaseStringPtr(CStdStr<wchar_t>** pp);

#endif
