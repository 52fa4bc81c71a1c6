#pragma once
#include "core/accessibility.h"
#include "core/control_site.h"
#include "core/input_popup.h"
#include "core/input_popups.h"
#include "core/surface.h"
#include <memory>
#include <utility>

namespace tolva {

// What the three pop-up forms share: a top-level pop-up window of the platform, the owner that
// opened it (Parent), placement, showing and hiding, and closing when it loses activation, which
// counts as acceptance: the form hides itself and calls its owner back with "".
//
// The forms are never destroyed while they run: Unload hides the window and forgets the state,
// and the owner may unload a form from inside the form's own callback. A form built on this
// gives its state back to the fresh look in Forget, and reaches its owner only through Callback.
//
// To screen readers a form is an element of its window, named after its owner; showing it moves
// the focus there.
template <class Popup> class PopupForm : public Popup, public AccessibleElement, protected SurfaceListener {
public:
    PopupForm(std::unique_ptr<Surface> window, ControlSite& site)
        : m_window(std::move(window))
        , m_site(site)
    {
        m_window->SetVisible(false);
        m_window->SetBorderStyle(0);
        m_window->SetListener(this);
    }
    ~PopupForm() override { m_window->SetListener(nullptr); }
    PopupForm(const PopupForm&) = delete;
    PopupForm& operator=(const PopupForm&) = delete;

    void Load() override
    {
        Hide();
        Forget();
    }
    void Unload() override
    {
        Hide();
        m_parent = nullptr;
        Forget();
    }

    PopupOwner* Parent() const override { return m_parent; }
    void SetParent(PopupOwner* owner) override { m_parent = owner; }

    float Width() const override { return m_window->Width(); }
    float Height() const override { return m_window->Height(); }
    void Resize(float width, float height) override { m_window->Move(m_window->Left(), m_window->Top(), width, height); }
    void Move(float left, float top) override { m_window->Move(left, top, Width(), Height()); }

    // The shown flag changes before the window does, so the loss of activation that hiding
    // causes is not taken for the user's.
    void Show() override
    {
        m_shown = true;
        m_window->SetVisible(true);
        m_window->Announce(AccessibleEvent::Focus, FocusedChild());
    }
    void Hide() override
    {
        m_shown = false;
        m_window->SetVisible(false);
    }
    bool Visible() const override { return m_shown; }

    Surface& Window() { return *m_window; }
    const Surface& Window() const { return *m_window; }
    bool DoDefaultAction() override { return false; }

protected:
    virtual void Forget() = 0;

    ControlSite& Site() const { return m_site; }
    // The form as screen readers read it: named after its owner, focusable, of this role and value.
    AccessibleDescription FormDescription(AccessibleRole role, String value) const
    {
        return { .name = m_parent ? m_parent->OwnerName() : String(),
            .role = role,
            .state = AccessibleStateOf(*m_window, MouseState {}, true),
            .value = std::move(value),
            .shortcut = {},
            .defaultAction = {},
            .location = {} };
    }

    // The owner's answer may reach client code that lets go of the owner: the hold keeps it until
    // the answer returns; an owner that goes then unloads this form.
    void Callback(StringView param, Currency value = {})
    {
        if (!m_parent)
            return;
        const std::shared_ptr<void> hold = m_parent->Hold();
        String message(param);
        m_parent->PopupWindowCallback(message, value);
    }
    bool OwnerTracksSelection() const { return m_parent && m_parent->SelectionTracking(); }
    void UnloadSelf() { m_site.Popups().Unload(Popup::KindOf); }

    void OnDeactivate(std::optional<PixelPoint> press) override
    {
        if (!m_shown)
            return;
        Hide();
        if (press && m_parent)
            m_parent->PopupClosedByPress(*press);
        Callback(u"");
    }

private:
    std::unique_ptr<Surface> m_window;
    ControlSite& m_site;
    PopupOwner* m_parent = nullptr;
    bool m_shown = false;
    AccessibleRegistration m_accessible { *m_window, *this };
};

} // namespace tolva
