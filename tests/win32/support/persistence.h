#pragma once
#include "platform/win32/com/com_ptr.h"
#include "tests/win32/support/recording_property_bag.h"
#include <ocidl.h>

namespace tolva::win32::test {

// What object's IPersistPropertyBag::Save wrote (clearDirty TRUE), or nothing when it failed.
ComPtr<RecordingPropertyBag> SavedBag(IUnknown* object, BOOL saveAllProperties = TRUE);

// Loads bag into object through IPersistPropertyBag.
HRESULT LoadBag(IUnknown* object, IPropertyBag* bag);

// Saves from into a stream through IPersistStreamInit and loads the stream into to: the result of
// the save when it failed, else of the load.
HRESULT CopyThroughStream(IUnknown* from, IUnknown* to);

} // namespace tolva::win32::test
