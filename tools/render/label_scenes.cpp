#include "controls/label/tolva_label.h"
#include "tools/render/scene.h"

namespace tolva::render {

namespace {

constexpr float Middle = 150; // twips from the top: on the caption's line

using Pose = std::function<void(TolvaLabel&, Stage&)>;

// A new 120 x 20 pixel label, white on black, with an access key and an arrow after its caption,
// then posed.
Scene LabelScene(std::string name, Pose pose)
{
    return { "label_" + name, 1800, 300, [pose = std::move(pose)](Stage& stage) {
                TolvaLabel label { stage.Surface(), stage.Site() };
                label.InitProperties();
                label.SetCaption(u"&Next page");
                label.SetArrowIcon(tkArrowIcon::tkArrowRight);
                label.SetArrowPosition(tkArrowPosition::tkRight);
                label.SetBackColorActive(0x303030);
                label.SetBackColorPushed(0x505050);
                pose(label, stage);
            } };
}

// The same label with another glyph and place for it.
Scene GlyphScene(std::string name, int32_t icon, int32_t position)
{
    return LabelScene(std::move(name), [icon, position](TolvaLabel& label, Stage&) {
        label.SetArrowIcon(icon);
        label.SetArrowPosition(position);
    });
}

} // namespace

std::vector<Scene> LabelScenes()
{
    using namespace tkArrowIcon;
    using namespace tkArrowPosition;
    return {
        LabelScene("normal", [](TolvaLabel&, Stage&) {}),
        LabelScene("hot", [](TolvaLabel&, Stage& stage) { stage.Surface().MouseMove(0, 0, 600, Middle); }),
        LabelScene("pushed",
            [](TolvaLabel&, Stage& stage) {
                stage.Surface().MouseMove(0, 0, 600, Middle);
                stage.Surface().MouseDown(1, 0, 600, Middle);
            }),
        LabelScene("disabled", [](TolvaLabel& label, Stage&) { label.SetEnabled(false); }),
        LabelScene("kerning", [](TolvaLabel& label, Stage&) { label.SetKerning(true); }),
        LabelScene("inset_centred",
            [](TolvaLabel& label, Stage&) {
                label.SetBorderStyle(tkLabelBorderStyle::Inset);
                label.SetAlignment(tkLabelAlignment::tkAlignCenter);
                label.SetArrowPosition(tkNone);
            }),
        GlyphScene("arrow_left_at_left", tkArrowLeft, tkLeft),
        GlyphScene("arrow_up_at_left", tkArrowUp, tkLeft),
        GlyphScene("arrow_down_after_text", tkArrowDown, tkRight),
        GlyphScene("arrow_down_at_end", tkArrowDown, tkEnd),
        GlyphScene("pointer_left_at_left", tkPointerLeft, tkLeft),
        GlyphScene("pointer_right_at_end", tkPointerRight, tkEnd),
    };
}

} // namespace tolva::render
