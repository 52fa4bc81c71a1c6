#include "platform/win32/inplace/in_place_part.h"
#include "platform/win32/com/error_reporting.h"
#include "platform/win32/inplace/view_object_part.h"

namespace tolva::win32 {

InPlacePart::InPlacePart(ControlObject& object)
    : PartOf(object)
{
    const ControlBehaviour& behaviour = m_object.Class().behaviour;
    Surface().SetOwner(this);
    Surface().SetCanGetFocus(behaviour.takesFocus);
    Surface().SetDialogCodes(behaviour.dialogCodes, behaviour.keepsEnter);
}

InPlacePart::~InPlacePart()
{
    // The object is going: its window closes without waking it or telling anyone.
    WindowSurface& surface = Surface();
    surface.DropKeepAlive();
    surface.SetOwner(nullptr);
    surface.DestroyWindow();
}

WindowSurface& InPlacePart::Surface()
{
    // The shell makes every control's surface a WindowSurface (CreateControlSurface).
    return static_cast<WindowSurface&>(m_object.ControlSurface());
}

void* InPlacePart::Interface(REFIID iid)
{
    if (iid == IID_IOleWindow || iid == IID_IOleInPlaceObject)
        return static_cast<IOleInPlaceObject*>(this);
    if (iid == IID_IOleInPlaceActiveObject)
        return static_cast<IOleInPlaceActiveObject*>(this);
    return nullptr;
}

ComPtr<IOleControlSite> InPlacePart::ControlSite() const
{
    return ComPtr<IOleClientSite>(m_object.Site().ClientSite()).As<IOleControlSite>(IID_IOleControlSite);
}

HRESULT InPlacePart::Activate(IOleClientSite* site, const RECT* position, bool ui)
{
    ComPtr<IUnknown> keepAlive(&m_object);
    ComPtr<IOleClientSite> clientSite(site ? site : m_object.Site().ClientSite());
    if (!clientSite)
        return E_UNEXPECTED;
    if (!m_inPlaceSite) {
        auto inPlaceSite = clientSite.As<IOleInPlaceSite>(IID_IOleInPlaceSite);
        if (!inPlaceSite)
            return E_NOINTERFACE;
        if (inPlaceSite->CanInPlaceActivate() != S_OK)
            return E_FAIL;
        HWND parent = nullptr;
        if (FAILED(inPlaceSite->GetWindow(&parent)) || !parent)
            return E_FAIL;
        inPlaceSite->OnInPlaceActivate();
        m_inPlaceSite = inPlaceSite;
        RECT siteRect {}, clip {};
        OLEINPLACEFRAMEINFO frameInfo { sizeof frameInfo, FALSE, nullptr, nullptr, 0 };
        if (FAILED(inPlaceSite->GetWindowContext(m_frame.Put(), m_document.Put(), &siteRect, &clip, &frameInfo))) {
            m_frame.Reset();
            m_document.Reset();
        }
        Surface().CreateWindowIn(parent, position ? *position : siteRect);
        if (!Surface().Window()) {
            InPlaceDeactivate();
            return E_OUTOFMEMORY;
        }
    }
    if (ui && !m_uiActive && !(m_object.Class().behaviour.miscStatus & OLEMISC_NOUIACTIVATE))
        UiActivate(true);
    return S_OK;
}

void InPlacePart::UiActivate(bool takeFocus)
{
    m_uiActive = true;
    m_inPlaceSite->OnUIActivate();
    auto* active = static_cast<IOleInPlaceActiveObject*>(this);
    if (m_frame) {
        m_frame->SetActiveObject(active, nullptr);
        m_frame->SetBorderSpace(nullptr);
    }
    if (m_document)
        m_document->SetActiveObject(active, nullptr);
    // The focus may already be inside the control, in a window of its own (its text box).
    HWND window = Surface().Window();
    HWND focus = GetFocus();
    if (takeFocus && focus != window && !IsChild(window, focus))
        Surface().SetFocus();
}

HRESULT InPlacePart::GetWindow(HWND* window)
{
    if (!window)
        return E_POINTER;
    *window = Surface().Window();
    return *window ? S_OK : E_FAIL;
}

HRESULT InPlacePart::ContextSensitiveHelp(BOOL)
{
    return E_NOTIMPL;
}

HRESULT InPlacePart::InPlaceDeactivate()
{
    if (!m_inPlaceSite)
        return S_OK;
    ComPtr<IUnknown> keepAlive(&m_object);
    UIDeactivate();
    Surface().DestroyWindow();
    ComPtr<IOleInPlaceSite> site = std::move(m_inPlaceSite);
    m_frame.Reset();
    m_document.Reset();
    site->OnInPlaceDeactivate();
    return S_OK;
}

HRESULT InPlacePart::UIDeactivate()
{
    if (!m_uiActive)
        return S_OK;
    m_uiActive = false;
    ComPtr<IUnknown> keepAlive(&m_object);
    if (m_frame)
        m_frame->SetActiveObject(nullptr, nullptr);
    if (m_document)
        m_document->SetActiveObject(nullptr, nullptr);
    if (m_inPlaceSite)
        m_inPlaceSite->OnUIDeactivate(FALSE);
    return S_OK;
}

HRESULT InPlacePart::SetObjectRects(LPCRECT position, LPCRECT)
{
    if (!position)
        return E_POINTER;
    return Entered(IID_IOleInPlaceObject, [&] {
        const float twips = float(SurfaceProperties::TwipsPerPixel);
        Surface().Move(float(position->left) * twips, float(position->top) * twips,
            float(position->right - position->left) * twips, float(position->bottom - position->top) * twips);
        return S_OK;
    });
}

HRESULT InPlacePart::ReactivateAndUndo()
{
    return E_NOTIMPL;
}

// Keys reach the control's own window; nothing needs translating before dispatch.
HRESULT InPlacePart::TranslateAccelerator(LPMSG)
{
    return S_FALSE;
}

HRESULT InPlacePart::OnFrameWindowActivate(BOOL)
{
    return S_OK;
}

HRESULT InPlacePart::OnDocWindowActivate(BOOL)
{
    return S_OK;
}

HRESULT InPlacePart::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL)
{
    return S_OK;
}

HRESULT InPlacePart::EnableModeless(BOOL)
{
    return S_OK;
}

void InPlacePart::OnSurfaceFocus(bool gotFocus)
{
    ComPtr<IUnknown> keepAlive(&m_object);
    if (gotFocus && m_inPlaceSite && !m_uiActive)
        UiActivate(false);
    if (auto site = ControlSite())
        site->OnFocus(gotFocus);
}

void InPlacePart::OnAccessKeysChanged()
{
    if (auto site = ControlSite())
        site->OnControlInfoChanged();
}

void InPlacePart::OnViewChanged()
{
    if (auto* view = m_object.FindPart<ViewObjectPart>())
        view->NotifyViewChange();
}

} // namespace tolva::win32
