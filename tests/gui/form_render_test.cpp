// Each sample form of examples/ as TolvaHost shows it under Wine and as tolva_render draws it on
// the headless platform (the pictures and text boxes that TOLVA_HEADLESS_PICTURES\forms holds):
// outside the text, all but a few pixels of the client area are the same. The forms run without
// their code, which tolva_render cannot run.
#include "host/form/form_reader.h"
#include "host/form/form_values.h"
#include "host/form/png_encoder.h"
#include "host/win32/text_file.h"
#include "tests/gui/host_program.h"
#include "tests/gui/png_reader.h"
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>
#include <vector>

namespace tolva::win32 {
namespace {

struct Box {
    int left = 0, top = 0, right = 0, bottom = 0;
    bool Contains(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
};

std::vector<Box> ReadBoxes(const std::wstring& path)
{
    std::istringstream lines(test::ReadFile(path));
    std::vector<Box> boxes;
    Box box;
    while (lines >> box.left >> box.top >> box.right >> box.bottom)
        boxes.push_back(box);
    return boxes;
}

std::vector<std::wstring> SampleForms()
{
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileW((test::Examples() + L"\\*.frm").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return names;
    do {
        const std::wstring file = found.cFileName;
        names.push_back(file.substr(0, file.size() - 4));
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
}

// The form's client area in TolvaHost's picture of its window: the frame is as wide on the left,
// right and bottom; the caption and any menu bar are above.
test::PngImage ClientArea(const test::PngImage& window, int width, int height)
{
    const int border = (window.width - width) / 2;
    const int top = window.height - border - height;
    test::PngImage client { width, height, {} };
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            client.pixels.push_back(window.At(border + x, top + y));
    return client;
}

void CompareOutsideTheText(const std::wstring& name, const std::wstring& pictures)
{
    const std::string text = test::ReadFile(test::Examples() + L"\\" + name + L".frm");
    const FormObject form = FormReader::Read(text);
    const FormValues values = ReadFormValues(form);
    const int width = int(std::lround(values.clientWidth / 15)), height = int(std::lround(values.clientHeight / 15));

    // The form alone in a folder of its own, so that its code stays behind; the pointer away
    // from it, then one picture.
    const test::ScratchFolder folder;
    const std::wstring& scratch = folder.Path();
    const std::wstring copy = scratch + L"\\" + name + L".frm", play = scratch + L"\\shot.play";
    ASSERT_TRUE(host::WriteTextFile(String(copy.begin(), copy.end()), text));
    const std::string steps = "move " + ToUtf8(form.name) + " -40 -40\nshot form\n";
    ASSERT_TRUE(host::WriteTextFile(String(play.begin(), play.end()), steps));
    const test::HostOutcome outcome
        = test::RunHost(L"\"" + copy + L"\" /play \"" + play + L"\" /shots \"" + scratch + L"\"", scratch);
    ASSERT_EQ(outcome.exitCode, 0u) << outcome.errors;

    const auto shot = test::ReadPng(scratch + L"\\form.png");
    ASSERT_TRUE(shot) << "TolvaHost took no picture";
    const auto headless = test::ReadPng(pictures + L"\\forms\\" + name + L".png");
    ASSERT_TRUE(headless) << "no headless picture forms\\" << ToUtf8(String(name.begin(), name.end())) << ".png";
    ASSERT_EQ(headless->width, width);
    ASSERT_EQ(headless->height, height);
    const test::PngImage wine = ClientArea(*shot, width, height);
    const std::vector<Box> boxes = ReadBoxes(pictures + L"\\forms\\" + name + L".text");
    EXPECT_FALSE(boxes.empty()) << "a sample form without text";

    int differences = 0;
    std::string first;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            bool inText = false;
            for (const Box& box : boxes)
                inText = inText || box.Contains(x, y);
            if (!inText && wine.At(x, y) != headless->At(x, y) && differences++ < 8)
                first += " (" + std::to_string(x) + "," + std::to_string(y) + ")";
        }
    // Fonts and carets aside, both draw the same pixels: at most one in 2,000 may differ (a
    // text box's caret, an antialiased edge the boxes just miss).
    EXPECT_LE(differences, width * height / 2000) << "first at" << first;
    if (differences > 0) {
        // TolvaHost's picture next to the headless one, to look at both.
        const std::wstring path = pictures + L"\\forms\\" + name + L"-tolvahost.png";
        host::WriteTextFile(String(path.begin(), path.end()), EncodePng(wine.width, wine.height, wine.pixels));
    }
}

TEST(SampleForms, TolvaHostAndTheHeadlessPlatformAgreeOutsideTheText)
{
    const std::wstring pictures = test::HeadlessPictureFolder();
    if (pictures.empty())
        GTEST_SKIP() << "TOLVA_HEADLESS_PICTURES names no folder of tolva_render pictures";
    const std::vector<std::wstring> forms = SampleForms();
    ASSERT_FALSE(forms.empty());
    for (const std::wstring& name : forms) {
        SCOPED_TRACE(ToUtf8(String(name.begin(), name.end())));
        CompareOutsideTheText(name, pictures);
    }
}

} // namespace
} // namespace tolva::win32
