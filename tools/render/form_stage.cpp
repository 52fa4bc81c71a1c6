#include "tools/render/form_stage.h"
#include "host/form/form_property_bag.h"
#include "host/form/form_syntax_error.h"
#include "platform/headless/window_picture.h"
#include <algorithm>

namespace tolva::render {

FormStage::FormStage(const FormObject& form)
{
    const FormValues values = ReadFormValues(form);
    m_window.SetBackColor(values.backColor);
    m_window.Resize(values.clientWidth, values.clientHeight);
    // Read in the file's order, so that the first refused line is the one reported.
    std::vector<const FormObject*> shown;
    for (const FormObject& child : form.children)
        if (!SameIdentifier(child.type, u"VB.Menu") && Validated(child).visible)
            shown.push_back(&child);
    // Windows puts a new child window below its siblings, so the file's first control is on top;
    // the window tree draws later children over earlier ones, so the stage makes them from the last.
    for (auto child = shown.rbegin(); child != shown.rend(); ++child)
        Place(**child, values);
    FocusFirstInTabOrder();
}

ExtenderValues FormStage::Validated(const FormObject& control)
{
    if (control.type.rfind(u"VB.", 0) == 0)
        throw FormSyntaxError(
            control.line, ToUtf8(control.type) + " is not supported: the host holds ActiveX controls and menus");
    if (!FindHeadlessControlClass(control.type))
        throw FormSyntaxError(control.line, ToUtf8(control.type) + " is not a control of the library");
    return ReadExtenderValues(control);
}

void FormStage::Place(const FormObject& control, const FormValues& form)
{
    auto placed = std::make_unique<Placed>();
    placed->controlClass = FindHeadlessControlClass(control.type);
    placed->extender = ReadExtenderValues(control);
    const ExtenderValues& extender = placed->extender;
    headless::TestSite& site = placed->site;
    site.ambientFont = form.font;
    site.displayAsDefault = extender.isDefault;
    site.extenderName = control.name;
    site.extenderWidth = extender.width;
    site.extenderHeight = extender.height;
    site.parent = &m_parent;

    placed->surface = m_window.CreateChild();
    placed->control = placed->controlClass->create(*placed->surface, site);
    FormObject properties = ControlProperties(control);
    FormPropertyBag bag(properties);
    placed->control->ReadProperties(bag);
    placed->surface->Move(extender.left, extender.top, extender.width, extender.height);
    auto& surface = static_cast<headless::HeadlessSurface&>(*placed->surface);
    surface.Show();
    surface.Paint();
    m_controls.push_back(std::move(placed));
}

void FormStage::FocusFirstInTabOrder()
{
    std::vector<Placed*> order;
    for (auto placed = m_controls.rbegin(); placed != m_controls.rend(); ++placed) // the file's order
        if ((*placed)->controlClass->takesFocus && (*placed)->surface->Enabled())
            order.push_back(placed->get());
    std::stable_sort(order.begin(), order.end(),
        [](const Placed* a, const Placed* b) { return a->extender.tabIndex < b->extender.tabIndex; });
    if (!order.empty())
        static_cast<headless::HeadlessSurface&>(*order.front()->surface).SetFocus();
}

headless::RasterCanvas FormStage::Picture() const
{
    return headless::WindowPicture(m_window);
}

} // namespace tolva::render
