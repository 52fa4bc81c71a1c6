#pragma once
#include "core/input_popup.h"
#include <array>

namespace tolva {

// The pop-ups of one user-interface thread: at most one of each kind, made on first use by the
// platform's factory and kept until the set goes. Loading one unloads the other two, so at most
// one is loaded at a time. The platform keeps one set per thread and hands it to every control
// through its site.
class InputPopups {
public:
    explicit InputPopups(PopupFactory& factory)
        : m_factory(factory)
    { }
    InputPopups(const InputPopups&) = delete;
    InputPopups& operator=(const InputPopups&) = delete;

    // The pop-up of that kind, loaded now if it was not; nullptr where the platform has none.
    template <class Popup> Popup* Load() { return static_cast<Popup*>(Load(Popup::KindOf)); }
    // The pop-up of that kind if it is loaded, without loading it.
    template <class Popup> Popup* Loaded() const { return static_cast<Popup*>(Loaded(Popup::KindOf)); }

    InputPopup* Load(PopupKind kind);
    InputPopup* Loaded(PopupKind kind) const;
    void Unload(PopupKind kind);

private:
    struct Slot {
        std::unique_ptr<InputPopup> popup;
        bool loaded = false;
    };
    static size_t IndexOf(PopupKind kind) { return size_t(kind); }

    PopupFactory& m_factory;
    std::array<Slot, 3> m_slots;
};

// A factory for platforms (and tests) without pop-up windows.
class NoPopups final : public PopupFactory {
public:
    std::unique_ptr<InputPopup> Create(PopupKind) override { return nullptr; }
};

} // namespace tolva
