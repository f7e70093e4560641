/// Which interface an object is asked for.
#pragma once

#include <dsound.h>

#include <cstring>

namespace platform {

inline bool same_guid(const GUID& a, const GUID& b) { return std::memcmp(&a, &b, sizeof a) == 0; }

/// QueryInterface of an object that has one interface besides the common one.
template <typename Object>
HRESULT query_interface(Object* self, const GUID& own, const GUID& wanted, LPVOID* object) {
  if (object == nullptr) return DSERR_INVALIDPARAM;
  *object = nullptr;
  if (!same_guid(wanted, own) && !same_guid(wanted, IID_IUnknown)) return DSERR_NOINTERFACE;
  self->AddRef();
  *object = self;
  return DS_OK;
}

}  // namespace platform
