#include <windows.h>

// Libraries of this system carry their bitmaps in a section of their own, and nothing else that the
// module asks for by these calls: nothing is ever found, and callers go on to the file of that name.

HRSRC FindResourceA(HMODULE, LPCSTR, LPCSTR) { return nullptr; }

HGLOBAL LoadResource(HMODULE, HRSRC) { return nullptr; }

LPVOID LockResource(HGLOBAL) { return nullptr; }

DWORD SizeofResource(HMODULE, HRSRC) { return 0; }
