// The format engine as a hostile form or client hands it a value and a format expression:
// pictures built from the characters that mean something in them, the named formats, and raw
// text. A refusal (an automation error) is fine; a crash, a hang or an unbounded result is not.
#include "core/automation_error.h"
#include "core/format/portable_formatter.h"
#include "fuzz/fuzzed_values.h"

namespace tolva::fuzz {

namespace {

// Every character and word a number, date or text picture gives a meaning, and the named formats.
constexpr StringView Pieces[] = { u"0", u"#", u".", u",", u"%", u"E+", u"E-", u"e+", u"e-", u"\\", u"\"", u";",
    u"@", u"&", u"<", u">", u"!", u"d", u"dd", u"ddd", u"dddd", u"ddddd", u"dddddd", u"m", u"mm", u"mmm",
    u"mmmm", u"y", u"yy", u"yyyy", u"h", u"hh", u"n", u"nn", u"s", u"ss", u"w", u"ww", u"q", u"c", u"AM/PM",
    u"am/pm", u"A/P", u"a/p", u"AMPM", u"/", u":", u"-", u"$", u"(", u")", u" ", u"*", u"_", u"General Number",
    u"Currency", u"Fixed", u"Standard", u"Percent", u"Scientific", u"Yes/No", u"True/False", u"On/Off",
    u"General Date", u"Long Date", u"Medium Date", u"Short Date", u"Long Time", u"Medium Time", u"Short Time" };

String FuzzedFormat(FuzzedDataProvider& data)
{
    return FuzzedPieces(data, Pieces, 40);
}

// Longer than any picture can make of the value: each item of the format writes a bounded
// number of characters, a number at most its 309 whole digits and its decimals.
size_t ResultBound(const Variant& value, StringView format)
{
    const size_t text = value.Holds<String>() ? value.ToString().size() : 0;
    return 2048 + 64 * format.size() + 2 * text;
}

} // namespace

} // namespace tolva::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    using namespace tolva;
    using namespace tolva::fuzz;
    FuzzedDataProvider data(bytes, size);
    PortableFormatter formatter;
    formatter.FixToday(OleDate::FromYmd(2026, 3, 15));
    const Variant value = FuzzedValue(data);
    const String format = FuzzedFormat(data);
    try {
        const String result = formatter.Format(value, format);
        if (result.size() > ResultBound(value, format))
            Fail("a format made a result longer than its bound");
    } catch (const AutomationError&) {
        // Refused: a value the format cannot show, or a picture the engine does not handle.
    }
    return 0;
}
