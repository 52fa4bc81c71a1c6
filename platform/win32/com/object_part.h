#pragma once
#include "platform/win32/windows_api.h"
#include <objbase.h>

namespace tolva::win32 {

class ControlObject;

// One group of interfaces of a control object (IDispatch, the persistence interfaces, ...). A
// part shares the object's identity and reference count; the object asks each part in turn
// for an interface it is queried for.
class ObjectPart {
public:
    virtual ~ObjectPart() = default;

    // The part's pointer for iid, without a reference added, or nullptr.
    virtual void* Interface(REFIID iid) = 0;
};

// The common base of parts: the COM interfaces the part implements, their IUnknown answered
// by the object.
template <class... Interfaces> class PartOf : public ObjectPart, public Interfaces... {
public:
    explicit PartOf(ControlObject& object)
        : m_object(object)
    { }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

protected:
    // Runs body as a call from outside: nothing thrown leaves it, and the object stays alive
    // until it returns, even when a client it calls out to releases its last reference.
    template <class Body> HRESULT Entered(REFIID iid, Body&& body) noexcept;

    ControlObject& m_object;
};

} // namespace tolva::win32
