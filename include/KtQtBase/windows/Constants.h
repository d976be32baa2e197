// SPDX-License-Identifier: MIT
//
// The named values that a host passes to functions under Windows names or compares with results.
//
//     if (GetFileAttributes(L"/tmp/report.txt") == INVALID_FILE_ATTRIBUTES) { ... }
//     painter.setPen(PS_DASH, 1, 0x000000FF);
//
// Each has the value that Windows publishes. They are objects, not macros, and a macro of the host
// with such a name stays what it is, defined before or after. Raster operations (R2_) and brush
// styles (BS_, HS_) are left out on purpose: such integers reach Qt unchanged, so pass values of
// QPainter::CompositionMode and Qt::BrushStyle instead. Message numbers: windows/MessageNumbers.h.
#ifndef KTQTBASE_WINDOWS_CONSTANTS_H
#define KTQTBASE_WINDOWS_CONSTANTS_H

#include <KtQtBase/windows/Scalars.h>

#include <KtQtBase/windows/HostMacros.h> // sets the host's macros aside

// ---- Lengths in records and buffers (characters) -----------------------------------------------

constexpr int MAX_PATH = 260;
constexpr int LF_FACESIZE = 32;
constexpr int LF_FULLFACESIZE = 64;
constexpr int CCHDEVICENAME = 32;
constexpr int CCHFORMNAME = 32;
constexpr int UNLEN = 256;

// ---- Results and errors ------------------------------------------------------------------------

// GetLastError returns errno, never one of these: they are for results.
constexpr DWORD ERROR_SUCCESS = 0;
constexpr DWORD NO_ERROR = 0;
constexpr DWORD ERROR_FILE_NOT_FOUND = 2;
constexpr DWORD ERROR_PATH_NOT_FOUND = 3;
constexpr DWORD ERROR_ACCESS_DENIED = 5;
constexpr DWORD ERROR_INVALID_HANDLE = 6;
constexpr DWORD ERROR_NOT_ENOUGH_MEMORY = 8;
constexpr DWORD ERROR_NO_MORE_FILES = 18;
constexpr DWORD ERROR_SHARING_VIOLATION = 32;
constexpr DWORD ERROR_FILE_EXISTS = 80;
constexpr DWORD ERROR_INVALID_PARAMETER = 87;
constexpr DWORD ERROR_INSUFFICIENT_BUFFER = 122;
constexpr DWORD ERROR_ALREADY_EXISTS = 183;
constexpr DWORD ERROR_ENVVAR_NOT_FOUND = 203;
constexpr DWORD ERROR_MORE_DATA = 234;
constexpr DWORD ERROR_NO_MORE_ITEMS = 259;

constexpr HRESULT S_OK = 0;
constexpr HRESULT S_FALSE = 1;

// ---- Files -------------------------------------------------------------------------------------

// CreateFile and FindFirstFileW always fail here and return null: compare with null, too.
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(-1LL);

// GetFileAttributes returns only the first of these; its other results are POSIX mode bits, in
// which the FILE_ATTRIBUTE_ flags mean nothing. The flags are for records and for CreateFile.
constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xFFFFFFFF;
constexpr DWORD FILE_ATTRIBUTE_READONLY = 0x00000001;
constexpr DWORD FILE_ATTRIBUTE_HIDDEN = 0x00000002;
constexpr DWORD FILE_ATTRIBUTE_SYSTEM = 0x00000004;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 0x00000010;
constexpr DWORD FILE_ATTRIBUTE_ARCHIVE = 0x00000020;
constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x00000080;
constexpr DWORD FILE_ATTRIBUTE_TEMPORARY = 0x00000100;

constexpr DWORD GENERIC_READ = 0x80000000;
constexpr DWORD GENERIC_WRITE = 0x40000000;
constexpr DWORD GENERIC_EXECUTE = 0x20000000;
constexpr DWORD GENERIC_ALL = 0x10000000;

constexpr DWORD FILE_SHARE_READ = 0x00000001;
constexpr DWORD FILE_SHARE_WRITE = 0x00000002;
constexpr DWORD FILE_SHARE_DELETE = 0x00000004;

constexpr DWORD CREATE_NEW = 1;
constexpr DWORD CREATE_ALWAYS = 2;
constexpr DWORD OPEN_EXISTING = 3;
constexpr DWORD OPEN_ALWAYS = 4;
constexpr DWORD TRUNCATE_EXISTING = 5;

constexpr DWORD FILE_BEGIN = 0;
constexpr DWORD FILE_CURRENT = 1;
constexpr DWORD FILE_END = 2;
constexpr DWORD INVALID_FILE_SIZE = 0xFFFFFFFF;
constexpr DWORD INVALID_SET_FILE_POINTER = 0xFFFFFFFF;

constexpr DWORD FILE_NOTIFY_CHANGE_FILE_NAME = 0x00000001;
constexpr DWORD FILE_NOTIFY_CHANGE_DIR_NAME = 0x00000002;
constexpr DWORD FILE_NOTIFY_CHANGE_ATTRIBUTES = 0x00000004;
constexpr DWORD FILE_NOTIFY_CHANGE_SIZE = 0x00000008;
constexpr DWORD FILE_NOTIFY_CHANGE_LAST_WRITE = 0x00000010;

// ---- Waiting, versions and text comparison -----------------------------------------------------

constexpr DWORD WAIT_OBJECT_0 = 0;
constexpr DWORD WAIT_ABANDONED = 0x00000080;
constexpr DWORD WAIT_TIMEOUT = 258;
constexpr DWORD WAIT_FAILED = 0xFFFFFFFF;
constexpr DWORD INFINITE = 0xFFFFFFFF;

constexpr DWORD VER_PLATFORM_WIN32_WINDOWS = 1;
constexpr DWORD VER_PLATFORM_WIN32_NT = 2;

constexpr DWORD LOCALE_USER_DEFAULT = 0x0400;
constexpr DWORD LOCALE_SYSTEM_DEFAULT = 0x0800;
constexpr DWORD NORM_IGNORECASE = 0x00000001;
constexpr DWORD NORM_IGNOREKANATYPE = 0x00010000;
constexpr DWORD NORM_IGNOREWIDTH = 0x00020000;
constexpr int CSTR_LESS_THAN = 1;
constexpr int CSTR_EQUAL = 2;
constexpr int CSTR_GREATER_THAN = 3;

// ---- Registry ----------------------------------------------------------------------------------

// Predefined keys; a 64-bit Windows extends the sign of their 32-bit numbers. Here a path is the
// same key under each of them.
inline const HKEY HKEY_CLASSES_ROOT = reinterpret_cast<HKEY>(0xFFFFFFFF80000000ULL);
inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(0xFFFFFFFF80000001ULL);
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(0xFFFFFFFF80000002ULL);
inline const HKEY HKEY_USERS = reinterpret_cast<HKEY>(0xFFFFFFFF80000003ULL);
inline const HKEY HKEY_PERFORMANCE_DATA = reinterpret_cast<HKEY>(0xFFFFFFFF80000004ULL);
inline const HKEY HKEY_CURRENT_CONFIG = reinterpret_cast<HKEY>(0xFFFFFFFF80000005ULL);
inline const HKEY HKEY_DYN_DATA = reinterpret_cast<HKEY>(0xFFFFFFFF80000006ULL);
inline const HKEY HKEY_CURRENT_USER_LOCAL_SETTINGS = reinterpret_cast<HKEY>(0xFFFFFFFF80000007ULL);
inline const HKEY HKEY_PERFORMANCE_TEXT = reinterpret_cast<HKEY>(0xFFFFFFFF80000050ULL);
inline const HKEY HKEY_PERFORMANCE_NLSTEXT = reinterpret_cast<HKEY>(0xFFFFFFFF80000060ULL);

constexpr DWORD KEY_READ = 0x00020019;
constexpr DWORD KEY_WRITE = 0x00020006;
constexpr DWORD KEY_ALL_ACCESS = 0x000F003F;

constexpr DWORD REG_OPTION_NON_VOLATILE = 0;
constexpr DWORD REG_OPTION_VOLATILE = 1;
constexpr DWORD REG_CREATED_NEW_KEY = 1;
constexpr DWORD REG_OPENED_EXISTING_KEY = 2;
constexpr DWORD REG_SZ = 1;
constexpr DWORD REG_EXPAND_SZ = 2;
constexpr DWORD REG_BINARY = 3;
constexpr DWORD REG_DWORD = 4;
constexpr DWORD REG_MULTI_SZ = 7;

// ---- Message boxes -----------------------------------------------------------------------------

constexpr UINT MB_OK = 0x00000000;
constexpr UINT MB_OKCANCEL = 0x00000001;
constexpr UINT MB_ABORTRETRYIGNORE = 0x00000002;
constexpr UINT MB_YESNOCANCEL = 0x00000003;
constexpr UINT MB_YESNO = 0x00000004;
constexpr UINT MB_RETRYCANCEL = 0x00000005;
constexpr UINT MB_CANCELTRYCONTINUE = 0x00000006;

constexpr UINT MB_ICONHAND = 0x00000010;
constexpr UINT MB_ICONSTOP = MB_ICONHAND;
constexpr UINT MB_ICONERROR = MB_ICONHAND;
constexpr UINT MB_ICONQUESTION = 0x00000020;
constexpr UINT MB_ICONEXCLAMATION = 0x00000030;
constexpr UINT MB_ICONWARNING = MB_ICONEXCLAMATION;
constexpr UINT MB_ICONASTERISK = 0x00000040;
constexpr UINT MB_ICONINFORMATION = MB_ICONASTERISK;
constexpr UINT MB_USERICON = 0x00000080;

constexpr UINT MB_DEFBUTTON1 = 0x00000000;
constexpr UINT MB_DEFBUTTON2 = 0x00000100;
constexpr UINT MB_DEFBUTTON3 = 0x00000200;
constexpr UINT MB_DEFBUTTON4 = 0x00000300;

constexpr UINT MB_APPLMODAL = 0x00000000;
constexpr UINT MB_SYSTEMMODAL = 0x00001000;
constexpr UINT MB_TASKMODAL = 0x00002000;
constexpr UINT MB_HELP = 0x00004000;
constexpr UINT MB_NOFOCUS = 0x00008000;
constexpr UINT MB_SETFOREGROUND = 0x00010000;
constexpr UINT MB_DEFAULT_DESKTOP_ONLY = 0x00020000;
constexpr UINT MB_TOPMOST = 0x00040000;
constexpr UINT MB_SERVICE_NOTIFICATION_NT3X = 0x00040000;
constexpr UINT MB_RIGHT = 0x00080000;
constexpr UINT MB_RTLREADING = 0x00100000;
constexpr UINT MB_SERVICE_NOTIFICATION = 0x00200000;

constexpr UINT MB_TYPEMASK = 0x0000000F;
constexpr UINT MB_ICONMASK = 0x000000F0;
constexpr UINT MB_DEFMASK = 0x00000F00;
constexpr UINT MB_MODEMASK = 0x00003000;
constexpr UINT MB_MISCMASK = 0x0000C000;

constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDABORT = 3;
constexpr int IDRETRY = 4;
constexpr int IDIGNORE = 5;
constexpr int IDYES = 6;
constexpr int IDNO = 7;
constexpr int IDCLOSE = 8;
constexpr int IDHELP = 9;
constexpr int IDTRYAGAIN = 10;
constexpr int IDCONTINUE = 11;
constexpr int IDTIMEOUT = 32000;
constexpr int IDASYNC = 32001;

// ---- Keys and screen metrics -------------------------------------------------------------------

constexpr int VK_BACK = 0x08;
constexpr int VK_TAB = 0x09;
constexpr int VK_RETURN = 0x0D;
constexpr int VK_SHIFT = 0x10;
constexpr int VK_CONTROL = 0x11;
constexpr int VK_MENU = 0x12;
constexpr int VK_CAPITAL = 0x14;
constexpr int VK_ESCAPE = 0x1B;
constexpr int VK_SPACE = 0x20;
constexpr int VK_LEFT = 0x25;
constexpr int VK_UP = 0x26;
constexpr int VK_RIGHT = 0x27;
constexpr int VK_DOWN = 0x28;
constexpr int VK_INSERT = 0x2D;
constexpr int VK_DELETE = 0x2E;

// GetSystemMetrics knows the two FULLSCREEN ones; every other index gives 0.
constexpr int SM_CXSCREEN = 0;
constexpr int SM_CYSCREEN = 1;
constexpr int SM_CXVSCROLL = 2;
constexpr int SM_CYHSCROLL = 3;
constexpr int SM_CYCAPTION = 4;
constexpr int SM_CXBORDER = 5;
constexpr int SM_CYBORDER = 6;
constexpr int SM_CXICON = 11;
constexpr int SM_CYICON = 12;
constexpr int SM_CXCURSOR = 13;
constexpr int SM_CYCURSOR = 14;
constexpr int SM_CYMENU = 15;
constexpr int SM_CXFULLSCREEN = 16;
constexpr int SM_CYFULLSCREEN = 17;
constexpr int SM_CXFRAME = 32;
constexpr int SM_CYFRAME = 33;
constexpr int SM_CXDOUBLECLK = 36;
constexpr int SM_CYDOUBLECLK = 37;
constexpr int SM_CXSMICON = 49;
constexpr int SM_CYSMICON = 50;

// ---- File dialog -------------------------------------------------------------------------------

constexpr DWORD OFN_READONLY = 0x00000001;
constexpr DWORD OFN_OVERWRITEPROMPT = 0x00000002;
constexpr DWORD OFN_HIDEREADONLY = 0x00000004;
constexpr DWORD OFN_NOCHANGEDIR = 0x00000008;
constexpr DWORD OFN_SHOWHELP = 0x00000010;
constexpr DWORD OFN_ENABLEHOOK = 0x00000020;
constexpr DWORD OFN_ENABLETEMPLATE = 0x00000040;
constexpr DWORD OFN_ENABLETEMPLATEHANDLE = 0x00000080;
constexpr DWORD OFN_NOVALIDATE = 0x00000100;
constexpr DWORD OFN_ALLOWMULTISELECT = 0x00000200;
constexpr DWORD OFN_EXTENSIONDIFFERENT = 0x00000400;
constexpr DWORD OFN_PATHMUSTEXIST = 0x00000800;
constexpr DWORD OFN_FILEMUSTEXIST = 0x00001000;
constexpr DWORD OFN_CREATEPROMPT = 0x00002000;
constexpr DWORD OFN_SHAREAWARE = 0x00004000;
constexpr DWORD OFN_NOREADONLYRETURN = 0x00008000;
constexpr DWORD OFN_NOTESTFILECREATE = 0x00010000;
constexpr DWORD OFN_NONETWORKBUTTON = 0x00020000;
constexpr DWORD OFN_NOLONGNAMES = 0x00040000;
constexpr DWORD OFN_EXPLORER = 0x00080000;
constexpr DWORD OFN_NODEREFERENCELINKS = 0x00100000;
constexpr DWORD OFN_LONGNAMES = 0x00200000;
constexpr DWORD OFN_ENABLEINCLUDENOTIFY = 0x00400000;
constexpr DWORD OFN_ENABLESIZING = 0x00800000;
constexpr DWORD OFN_DONTADDTORECENT = 0x02000000;
constexpr DWORD OFN_FORCESHOWHIDDEN = 0x10000000;

constexpr DWORD OFN_EX_NOPLACESBAR = 0x00000001;
constexpr UINT OFN_SHAREWARN = 0;
constexpr UINT OFN_SHARENOWARN = 1;
constexpr UINT OFN_SHAREFALLTHROUGH = 2;

// ---- Pens and backgrounds ----------------------------------------------------------------------

constexpr int PS_SOLID = 0;
constexpr int PS_DASH = 1;
constexpr int PS_DOT = 2;
constexpr int PS_DASHDOT = 3;
constexpr int PS_DASHDOTDOT = 4;
constexpr int PS_NULL = 5;
constexpr int PS_INSIDEFRAME = 6;
constexpr int PS_USERSTYLE = 7;
constexpr int PS_ALTERNATE = 8;
constexpr int PS_STYLE_MASK = 0x0000000F;

constexpr int PS_ENDCAP_ROUND = 0x00000000;
constexpr int PS_ENDCAP_SQUARE = 0x00000100;
constexpr int PS_ENDCAP_FLAT = 0x00000200;
constexpr int PS_ENDCAP_MASK = 0x00000F00;
constexpr int PS_JOIN_ROUND = 0x00000000;
constexpr int PS_JOIN_BEVEL = 0x00001000;
constexpr int PS_JOIN_MITER = 0x00002000;
constexpr int PS_JOIN_MASK = 0x0000F000;
constexpr int PS_COSMETIC = 0x00000000;
constexpr int PS_GEOMETRIC = 0x00010000;
constexpr int PS_TYPE_MASK = 0x000F0000;

constexpr int TRANSPARENT = 1;
constexpr int OPAQUE = 2;

// ---- Fonts -------------------------------------------------------------------------------------

constexpr int FW_DONTCARE = 0;
constexpr int FW_THIN = 100;
constexpr int FW_EXTRALIGHT = 200;
constexpr int FW_ULTRALIGHT = FW_EXTRALIGHT;
constexpr int FW_LIGHT = 300;
constexpr int FW_NORMAL = 400;
constexpr int FW_REGULAR = FW_NORMAL;
constexpr int FW_MEDIUM = 500;
constexpr int FW_SEMIBOLD = 600;
constexpr int FW_DEMIBOLD = FW_SEMIBOLD;
constexpr int FW_BOLD = 700;
constexpr int FW_EXTRABOLD = 800;
constexpr int FW_ULTRABOLD = FW_EXTRABOLD;
constexpr int FW_HEAVY = 900;
constexpr int FW_BLACK = FW_HEAVY;

constexpr BYTE DEFAULT_PITCH = 0;
constexpr BYTE FIXED_PITCH = 1;
constexpr BYTE VARIABLE_PITCH = 2;

constexpr BYTE FF_DONTCARE = 0x00;
constexpr BYTE FF_ROMAN = 0x10;
constexpr BYTE FF_SWISS = 0x20;
constexpr BYTE FF_MODERN = 0x30;
constexpr BYTE FF_SCRIPT = 0x40;
constexpr BYTE FF_DECORATIVE = 0x50;

constexpr BYTE ANSI_CHARSET = 0;
constexpr BYTE DEFAULT_CHARSET = 1;
constexpr BYTE SYMBOL_CHARSET = 2;
constexpr BYTE OUT_DEFAULT_PRECIS = 0;
constexpr BYTE CLIP_DEFAULT_PRECIS = 0;
constexpr BYTE DEFAULT_QUALITY = 0;

// ---- Bitmaps, devices and text output ----------------------------------------------------------

constexpr UINT DIB_RGB_COLORS = 0;
constexpr UINT DIB_PAL_COLORS = 1;
constexpr DWORD BI_RGB = 0;
constexpr DWORD BI_RLE8 = 1;
constexpr DWORD BI_RLE4 = 2;
constexpr DWORD BI_BITFIELDS = 3;

constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;
constexpr DWORD GDI_ERROR = 0xFFFFFFFF;

constexpr int HORZSIZE = 4;
constexpr int VERTSIZE = 6;
constexpr int HORZRES = 8;
constexpr int VERTRES = 10;
constexpr int BITSPIXEL = 12;
constexpr int RASTERCAPS = 38;
constexpr int LOGPIXELSX = 88;
constexpr int LOGPIXELSY = 90;
constexpr int PHYSICALWIDTH = 110;
constexpr int PHYSICALHEIGHT = 111;
constexpr int PHYSICALOFFSETX = 112;
constexpr int PHYSICALOFFSETY = 113;

constexpr UINT ETO_OPAQUE = 0x0002;
constexpr UINT ETO_CLIPPED = 0x0004;

// ---- Printers ----------------------------------------------------------------------------------

constexpr DWORD DM_ORIENTATION = 0x00000001;
constexpr DWORD DM_PAPERSIZE = 0x00000002;
constexpr DWORD DM_COPIES = 0x00000100;
constexpr DWORD DM_OUT_BUFFER = 2;
constexpr DWORD DM_IN_PROMPT = 4;
constexpr DWORD DM_IN_BUFFER = 8;
constexpr short DMORIENT_PORTRAIT = 1;
constexpr short DMORIENT_LANDSCAPE = 2;
constexpr short DMPAPER_LETTER = 1;
constexpr short DMPAPER_A4 = 9;
constexpr WORD DC_PAPERS = 2;
constexpr WORD DC_PAPERSIZE = 3;
constexpr WORD DC_PAPERNAMES = 16;

// ---- Special folders ---------------------------------------------------------------------------

constexpr int CSIDL_DESKTOP = 0x0000;
constexpr int CSIDL_PERSONAL = 0x0005;
constexpr int CSIDL_APPDATA = 0x001A;
constexpr int CSIDL_LOCAL_APPDATA = 0x001C;
constexpr int CSIDL_COMMON_APPDATA = 0x0023;
constexpr int CSIDL_WINDOWS = 0x0024;
constexpr int CSIDL_SYSTEM = 0x0025;
constexpr int CSIDL_PROGRAM_FILES = 0x0026;
constexpr int CSIDL_FLAG_CREATE = 0x8000;

#include <KtQtBase/windows/HostMacros.h> // gives them back

#endif
