#pragma once
#include "core/control_site.h"
#include "core/font.h"
#include "core/surface.h"
#include "pages/page_fields.h"
#include "pages/page_target.h"
#include <memory>
#include <vector>

namespace tolva {

// What a page tells the designer's page site: its changed flag went up (the site enables Apply).
class PageStatusListener {
public:
    virtual void OnStatusChange() = 0;

protected:
    ~PageStatusListener() = default;
};

// A design-time property page on its own surface, as the designer's page protocol drives it:
// the selected controls are handed over (the page loads its fields from the first one), editing
// a field raises the changed flag, and applying writes the fields back to the first one and
// lowers the flag. Fields that code fills while the page loads do not count as edits.
//
// The page paints its labels, its title and its decorative shape itself; text boxes are the
// platform's, check boxes and option buttons are models the platform shows as its own buttons,
// and the library's controls sit on child surfaces as on any form.
class PropertyPage : private SurfaceListener {
public:
    PropertyPage(const PropertyPage&) = delete;
    PropertyPage& operator=(const PropertyPage&) = delete;
    ~PropertyPage() override;

    const String& Caption() const { return m_caption; } // the tab the designer shows
    float Width() const { return m_width; } // twips
    float Height() const { return m_height; }

    void SetObjects(std::vector<std::shared_ptr<PageTarget>> objects);
    const std::vector<std::shared_ptr<PageTarget>>& Objects() const { return m_objects; }
    bool Changed() const { return m_changed; }
    void SetChanged(bool changed);
    void Apply(); // writes the fields to the first selected control; nothing without one
    void SetStatusListener(PageStatusListener* listener) { m_statusListener = listener; }

    const std::vector<std::unique_ptr<CheckBox>>& CheckBoxes() const { return m_checkBoxes; }
    const std::vector<std::unique_ptr<OptionGroup>>& OptionGroups() const { return m_optionGroups; }

    static Font PageFont(); // Tahoma, 8 points

protected:
    PropertyPage(Surface& surface, ControlSite& site, String caption, float width, float height);

    virtual void SelectionChanged() = 0;
    virtual void ApplyChanges() = 0;
    // Pictures a page draws beyond its labels (in pixels, on the page's canvas).
    virtual void PaintPictures(Canvas& /*canvas*/) { }

    PageTarget& FirstSelected() { return *m_objects.front(); }
    void MarkChanged();

    // A check box shows a Boolean property as its value And 1, so True checks it; it applies as
    // True only when checked, so a grey box applies False.
    void LoadCheck(CheckBox& box, StringView property);
    void ApplyCheck(const CheckBox& box, StringView property);

    void AddLabel(String caption, FieldPlace place);
    void AddTitle(FieldPlace place); // lblTitle, "General Properties", and the shape beneath it
    PageTextBox& AddTextBox(FieldPlace place, bool editsMark = true);
    CheckBox& AddCheckBox(String caption, FieldPlace place);
    OptionGroup& AddOptionGroup(std::vector<OptionGroup::Button> buttons);

    Surface& m_surface;
    ControlSite& m_site;

private:
    struct Label {
        String caption;
        FieldPlace place;
        bool bold = false;
    };

    void OnPaint() override;

    String m_caption;
    float m_width;
    float m_height;
    std::vector<Label> m_labels;
    std::vector<FieldPlace> m_shapes;
    std::vector<std::unique_ptr<PageTextBox>> m_textBoxes;
    std::vector<std::unique_ptr<CheckBox>> m_checkBoxes;
    std::vector<std::unique_ptr<OptionGroup>> m_optionGroups;
    std::vector<std::shared_ptr<PageTarget>> m_objects;
    bool m_changed = false;
    bool m_loading = false;
    PageStatusListener* m_statusListener = nullptr;
};

} // namespace tolva
