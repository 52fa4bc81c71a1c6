// Text read as currency and as a date, as a hostile client types it or a form hands it over:
// texts built from the pieces numbers and dates are written with, and raw text. A refusal is
// fine; what is read must agree with the tests for numbers and dates, and what is read, written
// out plainly, reads back as the same value.
#include "core/automation_error.h"
#include "core/format/portable_formatter.h"
#include "fuzz/fuzzed_values.h"
#include <cmath>

namespace tolva::fuzz {

namespace {

constexpr StringView Pieces[] = { u"0", u"1", u"2", u"3", u"5", u"7", u"9", u"12", u"31", u"99", u"100", u"1900",
    u"2029", u"9999", u"10000", u"922337203685477", u".", u",", u"/", u"-", u"+", u":", u" ", u"  ", u"\t", u"$",
    u"(", u")", u"E", u"e", u"D", u"&H", u"&O", u"&h", u"FFFF", u"7FFFFFFF", u"AM", u"PM", u"a", u"p", u"January",
    u"Feb", u"sep", u"SEPT", u"May", u"Monday", u"thu", u"1e308", u"1E-400", u"5808", u"0.00005" };

String FuzzedNumberOrDate(FuzzedDataProvider& data)
{
    return FuzzedPieces(data, Pieces, 16);
}

void CheckCurrency(PortableFormatter& formatter, StringView text)
{
    Currency amount;
    try {
        amount = formatter.TextToCurrency(text);
    } catch (const AutomationError&) {
        return;
    }
    if (!formatter.IsNumeric(text))
        Fail("text read as currency is not numeric");
    const String written = formatter.Format(Variant(amount), u"");
    Currency again;
    try {
        again = formatter.TextToCurrency(written);
    } catch (const AutomationError&) {
        Fail("an amount written plainly does not read back");
    }
    if (again != amount)
        Fail("an amount written plainly reads back as another");
}

void CheckDate(PortableFormatter& formatter, StringView text)
{
    const bool isDate = formatter.IsDate(text);
    OleDate date;
    try {
        date = formatter.TextToDate(text);
    } catch (const AutomationError&) {
        if (isDate)
            Fail("a date refused by the reading the date test accepts");
        return;
    }
    if (!isDate)
        Fail("text read as a date fails the date test");
    const String written = formatter.Format(Variant(date), u"");
    OleDate again;
    try {
        again = formatter.TextToDate(written);
    } catch (const AutomationError&) {
        Fail("a date written plainly does not read back");
    }
    // The plain form shows whole seconds.
    if (!(std::fabs(again.Serial() - date.Serial()) * 86400.0 < 0.5 + 1e-6))
        Fail("a date written plainly reads back as another");
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
    const String text = FuzzedNumberOrDate(data);
    CheckCurrency(formatter, text);
    CheckDate(formatter, text);
    return 0;
}
