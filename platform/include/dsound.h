/// The sound calls of the operating system that the module makes, for systems that lack them: real
/// names, types and constants; buffers are secondary ones of PCM, 8 or 16 bit, mono or stereo, by a
/// plain or an extensible format.
#pragma once

#include <windows.h>

// ---- Results ------------------------------------------------------------------------------------

constexpr HRESULT MAKE_DSHRESULT(DWORD code) { return static_cast<HRESULT>(0x88780000u | code); }

inline constexpr HRESULT DS_OK = S_OK;
inline constexpr HRESULT DSERR_PRIOLEVELNEEDED = MAKE_DSHRESULT(70);
inline constexpr HRESULT DSERR_BADFORMAT = MAKE_DSHRESULT(100);
inline constexpr HRESULT DSERR_NODRIVER = MAKE_DSHRESULT(120);
inline constexpr HRESULT DSERR_BUFFERLOST = MAKE_DSHRESULT(150);
inline constexpr HRESULT DSERR_OUTOFMEMORY = E_OUTOFMEMORY;
inline constexpr HRESULT DSERR_INVALIDPARAM = E_INVALIDARG;
inline constexpr HRESULT DSERR_NOAGGREGATION = CLASS_E_NOAGGREGATION;

// ---- Constants ----------------------------------------------------------------------------------

inline constexpr WORD WAVE_FORMAT_PCM = 1;

inline constexpr DWORD DSSCL_NORMAL = 1;
inline constexpr DWORD DSSCL_WRITEPRIMARY = 4;

inline constexpr DWORD DSBCAPS_STATIC = 0x02;
inline constexpr DWORD DSBCAPS_LOCSOFTWARE = 0x08;
inline constexpr DWORD DSBCAPS_CTRLPAN = 0x40;
inline constexpr DWORD DSBCAPS_CTRLVOLUME = 0x80;

inline constexpr DWORD DSBSIZE_MIN = 4;
inline constexpr DWORD DSBSIZE_MAX = 0x0FFFFFFF;
inline constexpr DWORD DSBFREQUENCY_MIN = 100;
inline constexpr DWORD DSBFREQUENCY_MAX = 200000;

inline constexpr DWORD DSBPLAY_LOOPING = 0x1;
inline constexpr DWORD DSBSTATUS_PLAYING = 0x1;
inline constexpr DWORD DSBSTATUS_BUFFERLOST = 0x2;
inline constexpr DWORD DSBSTATUS_LOOPING = 0x4;

// ---- Records ------------------------------------------------------------------------------------

// As they lie in a file: no gap before the extension, which has `cbSize` bytes.
#pragma pack(push, 1)
struct WAVEFORMATEX {
  WORD wFormatTag;
  WORD nChannels;
  DWORD nSamplesPerSec;
  DWORD nAvgBytesPerSec;
  WORD nBlockAlign;
  WORD wBitsPerSample;
  WORD cbSize;
};
typedef WAVEFORMATEX* LPWAVEFORMATEX;
#pragma pack(pop)
static_assert(sizeof(WAVEFORMATEX) == 18);

/// The short description: 20 bytes where pointers have four.
struct DSBUFFERDESC1 {
  DWORD dwSize;
  DWORD dwFlags;
  DWORD dwBufferBytes;
  DWORD dwReserved;
  LPWAVEFORMATEX lpwfxFormat;
};

/// The long description. `dwSize` says which of the two it is.
struct DSBUFFERDESC {
  DWORD dwSize;
  DWORD dwFlags;
  DWORD dwBufferBytes;
  DWORD dwReserved;
  LPWAVEFORMATEX lpwfxFormat;
  GUID guid3DAlgorithm;
};
typedef const DSBUFFERDESC* LPCDSBUFFERDESC;

// ---- Objects: each has one reference; Release destroys it ---------------------------------------

struct IUnknown {
  virtual ULONG Release() = 0;

 protected:
  ~IUnknown() = default;
};
typedef IUnknown* LPUNKNOWN;

/// One sound in memory. After its device went away it is lost: Lock and Play fail with
/// DSERR_BUFFERLOST until Restore succeeds, and then its samples must be written again.
struct IDirectSoundBuffer : IUnknown {
  virtual HRESULT GetStatus(LPDWORD status) = 0;
  /// Gives `bytes` bytes from `offset`; what reaches beyond the end continues at the start as the
  /// second part (null and 0 when there is none).
  virtual HRESULT Lock(DWORD offset, DWORD bytes, LPVOID* part1, LPDWORD bytes1, LPVOID* part2,
                       LPDWORD bytes2, DWORD flags) = 0;
  /// From the current position; from the start after it has played to its end.
  virtual HRESULT Play(DWORD reserved, DWORD priority, DWORD flags) = 0;
  /// In bytes.
  virtual HRESULT SetCurrentPosition(DWORD position) = 0;
  virtual HRESULT Stop() = 0;
  virtual HRESULT Unlock(LPVOID part1, DWORD bytes1, LPVOID part2, DWORD bytes2) = 0;
  virtual HRESULT Restore() = 0;

 protected:
  ~IDirectSoundBuffer() = default;
};
typedef IDirectSoundBuffer* LPDIRECTSOUNDBUFFER;

struct IDirectSound : IUnknown {
  /// Needs a cooperative level. DSERR_BADFORMAT for samples that cannot be played, DSERR_INVALIDPARAM
  /// for a format or size that makes no sense.
  virtual HRESULT CreateSoundBuffer(LPCDSBUFFERDESC description, LPDIRECTSOUNDBUFFER* buffer,
                                    LPUNKNOWN outer) = 0;
  /// A second buffer over the same samples, with its own position and status.
  virtual HRESULT DuplicateSoundBuffer(LPDIRECTSOUNDBUFFER original,
                                       LPDIRECTSOUNDBUFFER* duplicate) = 0;
  /// Refuses a window that does not exist.
  virtual HRESULT SetCooperativeLevel(HWND window, DWORD level) = 0;

 protected:
  ~IDirectSound() = default;
};
typedef IDirectSound* LPDIRECTSOUND;

extern "C" {

/// Opens the default device (`device` null). DSERR_NODRIVER when there is none.
WINBASEAPI HRESULT DirectSoundCreate(LPCGUID device, LPDIRECTSOUND* sound, LPUNKNOWN outer);

}  // extern "C"
