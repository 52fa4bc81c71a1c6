#pragma once
#include "core/font.h"
#include "core/ole_color.h"
#include "core/string.h"
#include "core/surface.h"

namespace tolva {

// The properties a control keeps on its surface instead of in members of its own: Font, Enabled
// and ForeColor. Getters read the surface; setters hand the value to the surface, then follow the
// setter pattern through the control's PropertyChanged(key), which reports the key and repaints.
// Control derives from this publicly and lets it reach m_surface and PropertyChanged.
template <class Control> class DelegatedProperties {
public:
    Font GetFont() const { return SurfaceOf().GetFont(); }
    void SetFont(const Font& font)
    {
        SurfaceOf().SetFont(font);
        Changed(u"Font");
    }
    bool Enabled() const { return SurfaceOf().Enabled(); }
    void SetEnabled(bool enabled)
    {
        SurfaceOf().SetEnabled(enabled);
        Changed(u"Enabled");
    }
    OleColor ForeColor() const { return SurfaceOf().ForeColor(); }
    void SetForeColor(OleColor color)
    {
        SurfaceOf().SetForeColor(color);
        Changed(u"ForeColor");
    }

protected:
    ~DelegatedProperties() = default;

    Surface& SurfaceOf() const { return static_cast<const Control&>(*this).m_surface; }
    void Changed(StringView key) { static_cast<Control&>(*this).PropertyChanged(key); }
};

// BackColor kept on the surface too, for a control whose background is the surface's own.
template <class Control> class DelegatedBackColor : public DelegatedProperties<Control> {
public:
    OleColor BackColor() const { return this->SurfaceOf().BackColor(); }
    void SetBackColor(OleColor color)
    {
        this->SurfaceOf().SetBackColor(color);
        this->Changed(u"BackColor");
    }

protected:
    ~DelegatedBackColor() = default;
};

} // namespace tolva
