#include "platform/win32/window/about_box.h"
#include "about/about_dialog.h"
#include "platform/win32/com/bstr.h"
#include "platform/win32/com/control_class.h"
#include "platform/win32/com/module.h"
#include "platform/win32/gdi/gdi_object.h"
#include <vector>

namespace tolva::win32 {

namespace {

constexpr WORD ButtonClass = 0x0080;
constexpr WORD StaticClass = 0x0082;
constexpr int FirstLineId = 100;
constexpr int FirstImageId = 200;

// An in-memory dialog template: DLGTEMPLATE, then DWORD-aligned DLGITEMTEMPLATEs, each followed
// by its class atom, title and an empty creation-data block.
class DialogTemplate {
public:
    void Header(
        DWORD style, const AboutDialog::Box& box, StringView title, WORD fontSize, StringView fontFace, WORD itemCount)
    {
        Dword(style);
        Dword(0);
        Word(itemCount);
        Box(box);
        Word(0); // no menu
        Word(0); // the standard dialog class
        Text(title);
        Word(fontSize);
        Text(fontFace);
    }

    void Item(DWORD style, const AboutDialog::Box& box, WORD id, WORD classAtom, StringView title)
    {
        while (m_words.size() % 2)
            Word(0);
        Dword(style);
        Dword(0);
        Box(box);
        Word(id);
        Word(0xFFFF);
        Word(classAtom);
        Text(title);
        Word(0);
    }

    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(m_words.data()); }

private:
    void Word(WORD w) { m_words.push_back(w); }
    void Dword(DWORD d)
    {
        Word(LOWORD(d));
        Word(HIWORD(d));
    }
    void Box(const AboutDialog::Box& box)
    {
        Word(WORD(box.x));
        Word(WORD(box.y));
        Word(WORD(box.width));
        Word(WORD(box.height));
    }
    void Text(StringView text)
    {
        m_words.insert(m_words.end(), text.begin(), text.end());
        Word(0);
    }

    std::vector<WORD> m_words; // WORD storage keeps the template WORD-aligned; DWORDs are split
};

struct DialogImage {
    int id; // of its static control
    int resource; // of the bitmap
};

struct DialogState {
    std::vector<int> boldIds;
    GdiObject<HFONT> boldFont;
    std::vector<DialogImage> images;
    std::vector<GdiObject<HBITMAP>> bitmaps; // the static controls show them without owning them
};

void SetBoldFont(HWND dialog, DialogState& state)
{
    LOGFONTW font {};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(dialog, WM_GETFONT, 0, 0)), sizeof font, &font);
    font.lfWeight = FW_BOLD;
    state.boldFont = GdiObject<HFONT>(CreateFontIndirectW(&font));
    for (int id : state.boldIds)
        SendDlgItemMessageW(dialog, id, WM_SETFONT, reinterpret_cast<WPARAM>(state.boldFont.Get()), FALSE);
}

// The toolbox bitmaps from the module's resources, their grey background mapped to the
// dialog's face colour as form designers show them.
void SetImages(HWND dialog, DialogState& state)
{
    for (const DialogImage& image : state.images) {
        GdiObject<HBITMAP> bitmap(static_cast<HBITMAP>(LoadImageW(
            Module::Handle(), MAKEINTRESOURCEW(image.resource), IMAGE_BITMAP, 0, 0, LR_LOADMAP3DCOLORS)));
        SendDlgItemMessageW(dialog, image.id, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap.Get()));
        state.bitmaps.push_back(std::move(bitmap));
    }
}

INT_PTR CALLBACK AboutProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_INITDIALOG:
        SetBoldFont(dialog, *reinterpret_cast<DialogState*>(lParam));
        SetImages(dialog, *reinterpret_cast<DialogState*>(lParam));
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) {
            EndDialog(dialog, LOWORD(wParam));
            return TRUE;
        }
        break;
    }
    return FALSE;
}

// The dialog with the toolbox image of every control class of the library.
AboutDialog AboutDialogOfTheLibrary()
{
    std::vector<String> controls;
    for (const ControlClass* c : ControlClasses())
        if (c->ToolboxBitmap())
            controls.push_back(FromWide(c->name));
    return AboutDialog(std::move(controls));
}

} // namespace

void ShowAboutBox(HWND owner)
{
    const AboutDialog about = AboutDialogOfTheLibrary();
    const auto lines = about.Lines();
    const auto images = about.Images();
    DialogState state;
    DialogTemplate dialog;
    dialog.Header(DS_MODALFRAME | DS_SETFONT | DS_CENTER | WS_POPUP | WS_CAPTION | WS_SYSMENU, about.Client(),
        about.Title(), 8, u"MS Shell Dlg", WORD(lines.size() + images.size() + 1));
    for (size_t i = 0; i < lines.size(); ++i) {
        const int id = FirstLineId + int(i);
        dialog.Item(WS_CHILD | WS_VISIBLE | SS_LEFT | SS_NOPREFIX, lines[i].box, WORD(id), StaticClass, lines[i].text);
        if (lines[i].bold)
            state.boldIds.push_back(id);
    }
    for (size_t i = 0; i < images.size(); ++i) {
        const int id = FirstImageId + int(i);
        dialog.Item(WS_CHILD | WS_VISIBLE | SS_BITMAP, images[i].box, WORD(id), StaticClass, u"");
        state.images.push_back({ id, ToolboxBitmapOf(WidePointer(images[i].control)) });
    }
    dialog.Item(WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_DEFPUSHBUTTON, about.CloseButton(), IDOK, ButtonClass,
        about.CloseCaption());
    DialogBoxIndirectParamW(
        Module::Handle(), dialog.Get(), owner, &AboutProc, reinterpret_cast<LPARAM>(&state));
}

} // namespace tolva::win32
