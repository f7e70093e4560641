/// The operating system's own calls that the module makes, for systems that lack them: real names,
/// types and constants, so that the same source compiles against the real ones. C++ only.
/// What each call leaves out of the real one is said beside it; a request for that part fails.
#pragma once

#include <cstddef>
#include <cstdint>

#define WINBASEAPI           __attribute__((visibility("default")))
#define DECLARE_HANDLE(name) typedef struct name##_handle* name

// ---- Types: sizes are the real ones, whatever this system's `long` is ---------------------------

typedef int BOOL;
typedef std::uint8_t BYTE;
typedef std::uint16_t WORD;
typedef std::uint32_t DWORD;
typedef std::int32_t LONG;
typedef std::uint32_t ULONG;
typedef unsigned int UINT;
typedef std::size_t SIZE_T;
typedef std::int32_t HRESULT;
typedef char* LPSTR;
typedef const char* LPCSTR;
typedef void* LPVOID;
typedef const void* LPCVOID;
typedef DWORD* LPDWORD;

typedef void* HANDLE;
typedef HANDLE HGLOBAL;
DECLARE_HANDLE(HWND);
DECLARE_HANDLE(HINSTANCE);
DECLARE_HANDLE(HRSRC);
typedef HINSTANCE HMODULE;

struct SECURITY_ATTRIBUTES;
typedef SECURITY_ATTRIBUTES* LPSECURITY_ATTRIBUTES;

struct GUID {
  DWORD Data1;
  WORD Data2;
  WORD Data3;
  BYTE Data4[8];
};
typedef const GUID* LPCGUID;

// ---- Constants ----------------------------------------------------------------------------------

inline constexpr BOOL FALSE = 0;
inline constexpr BOOL TRUE = 1;

#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(-1)))
inline constexpr DWORD INVALID_FILE_SIZE = 0xFFFFFFFFu;

inline constexpr DWORD GENERIC_READ = 0x80000000u;
inline constexpr DWORD FILE_SHARE_READ = 0x1;
inline constexpr DWORD OPEN_EXISTING = 3;
inline constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
inline constexpr DWORD PAGE_READONLY = 0x02;
inline constexpr DWORD FILE_MAP_READ = 0x0004;

inline constexpr UINT MB_OK = 0x0;
inline constexpr UINT MB_ICONEXCLAMATION = 0x30;
inline constexpr int IDOK = 1;

constexpr bool SUCCEEDED(HRESULT result) { return result >= 0; }
constexpr bool FAILED(HRESULT result) { return result < 0; }

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000Eu);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057u);
inline constexpr HRESULT CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110u);

extern "C" {

// ---- Windows and messages -----------------------------------------------------------------------

/// The host's window of a class, or null. Windows have no titles here: `title` must be null.
WINBASEAPI HWND FindWindowA(LPCSTR class_name, LPCSTR title);

/// Shows a message and waits until it is read. Without a display, one line on standard error.
/// Returns IDOK.
WINBASEAPI int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);

// ---- Resources: libraries of this system carry none of the kinds asked for here -----------------

WINBASEAPI HRSRC FindResourceA(HMODULE module, LPCSTR name, LPCSTR type);
WINBASEAPI HGLOBAL LoadResource(HMODULE module, HRSRC resource);
WINBASEAPI LPVOID LockResource(HGLOBAL resource);
WINBASEAPI DWORD SizeofResource(HMODULE module, HRSRC resource);

// ---- Files --------------------------------------------------------------------------------------

/// Where relative paths start: the process's own directory until set. Not the POSIX one.
WINBASEAPI BOOL SetCurrentDirectoryA(LPCSTR path);
/// Returns the length without the final zero, or the size needed when `size` is too small.
WINBASEAPI DWORD GetCurrentDirectoryA(DWORD size, LPSTR path);

/// Opens an ordinary file for reading; either slash, any letter case. Else INVALID_HANDLE_VALUE.
WINBASEAPI HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                              DWORD disposition, DWORD attributes, HANDLE pattern);
/// The size in bytes, its upper half in `high` unless null; INVALID_FILE_SIZE for no file.
WINBASEAPI DWORD GetFileSize(HANDLE file, LPDWORD high);

/// A read-only mapping of the whole file, or null. An empty file cannot be mapped.
WINBASEAPI HANDLE CreateFileMappingA(HANDLE file, LPSECURITY_ATTRIBUTES security, DWORD protection,
                                     DWORD size_high, DWORD size_low, LPCSTR name);
/// The bytes of the whole file (offset and length 0), or null.
WINBASEAPI LPVOID MapViewOfFile(HANDLE mapping, DWORD access, DWORD offset_high, DWORD offset_low,
                                SIZE_T length);
WINBASEAPI BOOL UnmapViewOfFile(LPCVOID view);
/// A view outlives its mapping's handle, and that the file's.
WINBASEAPI BOOL CloseHandle(HANDLE handle);

}  // extern "C"
