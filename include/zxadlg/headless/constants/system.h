// Memory, modules, resources, errors, files, the registry, exceptions.
#pragma once

#include "zxadlg/headless/types.h"

// Memory, modules, errors, files.
inline constexpr int GMEM_MOVEABLE = 0x2;
inline constexpr int GMEM_ZEROINIT = 0x40;
inline constexpr int CF_TEXT = 0x1;
inline constexpr int CF_OEMTEXT = 0x7;
inline constexpr int CF_UNICODETEXT = 0xD;
inline constexpr int DLL_PROCESS_DETACH = 0x0;
inline constexpr int MAX_PATH = 0x104;
inline constexpr int GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS = 0x4;
inline constexpr int GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT = 0x2;
inline constexpr int LOAD_WITH_ALTERED_SEARCH_PATH = 0x8;
inline constexpr int ERROR_SUCCESS = 0x0;
inline constexpr int ERROR_FILE_NOT_FOUND = 0x2;
inline constexpr int ERROR_PATH_NOT_FOUND = 0x3;
inline constexpr int ERROR_ACCESS_DENIED = 0x5;
inline constexpr int ERROR_INVALID_HANDLE = 0x6;
inline constexpr int ERROR_NOT_ENOUGH_MEMORY = 0x8;
inline constexpr int ERROR_INVALID_PARAMETER = 0x57;
inline constexpr int ERROR_INSUFFICIENT_BUFFER = 0x7A;
inline constexpr int ERROR_MOD_NOT_FOUND = 0x7E;
inline constexpr int ERROR_PROC_NOT_FOUND = 0x7F;
inline constexpr int ERROR_MORE_DATA = 0xEA;
inline constexpr int ERROR_NO_MORE_ITEMS = 0x103;
inline constexpr int ERROR_KEY_DELETED = 0x3FA;
inline constexpr int ERROR_ENVVAR_NOT_FOUND = 0xCB;
inline constexpr int ERROR_CLASS_ALREADY_EXISTS = 0x582;
inline constexpr int ERROR_CLASS_DOES_NOT_EXIST = 0x583;
inline constexpr int ERROR_CANNOT_FIND_WND_CLASS = 0x57F;
inline constexpr int ERROR_INVALID_WINDOW_HANDLE = 0x578;
inline constexpr int ERROR_INVALID_MENU_HANDLE = 0x579;
inline constexpr int ERROR_POPUP_ALREADY_ACTIVE = 0x5A6;
inline constexpr int ERROR_MENU_ITEM_NOT_FOUND = 0x5B0;
inline constexpr int ERROR_CLASS_HAS_WINDOWS = 0x584;
inline constexpr int ERROR_CONTROL_ID_NOT_FOUND = 0x58D;
inline constexpr int ERROR_RESOURCE_DATA_NOT_FOUND = 0x714;
inline constexpr int ERROR_RESOURCE_TYPE_NOT_FOUND = 0x715;
inline constexpr int ERROR_RESOURCE_NAME_NOT_FOUND = 0x716;
inline constexpr int ERROR_ALREADY_EXISTS = 0xB7;
inline constexpr int ERROR_DIR_NOT_EMPTY = 0x91;
inline constexpr int ERROR_INVALID_NAME = 0x7B;
inline constexpr int ERROR_DISK_FULL = 0x70;
inline constexpr int ERROR_INVALID_INDEX = 0x585;
inline constexpr int ERROR_TLW_WITH_WSCHILD = 0x57E;
inline constexpr int ERROR_INVALID_HOOK_FILTER = 0x592;
inline constexpr int ERROR_INVALID_THREAD_ID = 0x5A4;
inline constexpr int ERROR_BAD_FORMAT = 0xB;
inline constexpr int ERROR_WINDOW_OF_OTHER_THREAD = 0x580;
inline constexpr int ERROR_INVALID_HOOK_HANDLE = 0x57C;
inline constexpr DWORD GENERIC_READ = 0x80000000;
inline constexpr int GENERIC_WRITE = 0x40000000;
inline constexpr int FILE_SHARE_READ = 0x1;
inline constexpr int FILE_SHARE_WRITE = 0x2;
inline constexpr int CREATE_NEW = 0x1;
inline constexpr int CREATE_ALWAYS = 0x2;
inline constexpr int OPEN_EXISTING = 0x3;
inline constexpr int OPEN_ALWAYS = 0x4;
inline constexpr int FILE_ATTRIBUTE_NORMAL = 0x80;
inline constexpr int FILE_ATTRIBUTE_READONLY = 0x1;
inline constexpr int FILE_ATTRIBUTE_DIRECTORY = 0x10;
inline constexpr DWORD INVALID_FILE_ATTRIBUTES = 0xFFFFFFFF;
inline constexpr DWORD INVALID_FILE_SIZE = 0xFFFFFFFF;
inline constexpr int MOVEFILE_REPLACE_EXISTING = 0x1;
inline constexpr int MOVEFILE_WRITE_THROUGH = 0x8;

// Registry.
inline constexpr int KEY_QUERY_VALUE = 0x1;
inline constexpr int KEY_SET_VALUE = 0x2;
inline constexpr int KEY_CREATE_SUB_KEY = 0x4;
inline constexpr int KEY_READ = 0x20019;
inline constexpr int KEY_ALL_ACCESS = 0xF003F;
inline constexpr int REG_NONE = 0x0;
inline constexpr int REG_SZ = 0x1;
inline constexpr int REG_EXPAND_SZ = 0x2;
inline constexpr int REG_BINARY = 0x3;
inline constexpr int REG_DWORD = 0x4;
inline constexpr int REG_OPTION_NON_VOLATILE = 0x0;
inline constexpr int REG_CREATED_NEW_KEY = 0x1;
inline constexpr int REG_OPENED_EXISTING_KEY = 0x2;
inline constexpr int CSIDL_PERSONAL = 5;
inline constexpr int CSIDL_APPDATA = 26;
inline constexpr int CSIDL_LOCAL_APPDATA = 28;
inline constexpr int SHGFP_TYPE_CURRENT = 0;

// Predefined registry roots.
#define HKEY_CLASSES_ROOT (reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(0x80000000u)))
#define HKEY_CURRENT_USER (reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(0x80000001u)))
#define HKEY_LOCAL_MACHINE (reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(0x80000002u)))
#define HKEY_USERS (reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(0x80000003u)))

// Names of resources by number.
#define IS_INTRESOURCE(r) ((reinterpret_cast<ULONG_PTR>(r) >> 16) == 0)
#define MAKEINTRESOURCEA(i) (reinterpret_cast<LPSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(i))))
#define RT_BITMAP MAKEINTRESOURCEA(2)
#define RT_DIALOG MAKEINTRESOURCEA(5)
#define RT_STRING MAKEINTRESOURCEA(6)
#define RT_RCDATA MAKEINTRESOURCEA(10)
#define RT_GROUP_CURSOR MAKEINTRESOURCEA(12)
#define RT_GROUP_ICON MAKEINTRESOURCEA(14)
// Type 240 holds initial contents of lists, as the resource compilers write them.
#define IDI_APPLICATION MAKEINTRESOURCEA(32512)
#define IDI_HAND MAKEINTRESOURCEA(32513)
#define IDI_QUESTION MAKEINTRESOURCEA(32514)
#define IDI_EXCLAMATION MAKEINTRESOURCEA(32515)
#define IDI_ASTERISK MAKEINTRESOURCEA(32516)
#define IDC_ARROW MAKEINTRESOURCEA(32512)
#define IDC_IBEAM MAKEINTRESOURCEA(32513)

// Exceptions.
inline constexpr DWORD EXCEPTION_DATATYPE_MISALIGNMENT = 0x80000002;
inline constexpr DWORD EXCEPTION_BREAKPOINT = 0x80000003;
inline constexpr DWORD EXCEPTION_SINGLE_STEP = 0x80000004;
inline constexpr DWORD EXCEPTION_ACCESS_VIOLATION = 0xC0000005;
inline constexpr DWORD EXCEPTION_NONCONTINUABLE_EXCEPTION = 0xC0000025;
inline constexpr DWORD EXCEPTION_ARRAY_BOUNDS_EXCEEDED = 0xC000008C;
inline constexpr DWORD EXCEPTION_FLT_DENORMAL_OPERAND = 0xC000008D;
inline constexpr DWORD EXCEPTION_FLT_DIVIDE_BY_ZERO = 0xC000008E;
inline constexpr DWORD EXCEPTION_FLT_INEXACT_RESULT = 0xC000008F;
inline constexpr DWORD EXCEPTION_FLT_INVALID_OPERATION = 0xC0000090;
inline constexpr DWORD EXCEPTION_FLT_OVERFLOW = 0xC0000091;
inline constexpr DWORD EXCEPTION_FLT_STACK_CHECK = 0xC0000092;
inline constexpr DWORD EXCEPTION_FLT_UNDERFLOW = 0xC0000093;
inline constexpr DWORD EXCEPTION_INT_DIVIDE_BY_ZERO = 0xC0000094;
inline constexpr DWORD EXCEPTION_INT_OVERFLOW = 0xC0000095;
inline constexpr DWORD EXCEPTION_PRIV_INSTRUCTION = 0xC0000096;
