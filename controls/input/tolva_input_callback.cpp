// What the pop-ups hand back: dates, calculator keys and list items, formatted into the text.
#include "controls/input/tolva_input.h"
#include "core/format/formatter.h"
#include "core/input_popups.h"

namespace tolva {

namespace {

constexpr StringView Cancel = u"CANCEL";
constexpr StringView DefaultDateFormat = u"mm/dd/yyyy";
constexpr StringView DefaultClosedFormat = u"Currency";
constexpr StringView CalculatorDisplayFormat = u"General Number";

StringView OrDefault(const String& format, StringView fallback)
{
    return format.empty() ? fallback : StringView(format);
}

} // namespace

Formatter& TolvaInput::Formatting()
{
    return m_site.Formatting();
}

void TolvaInput::CaretToEnd()
{
    m_txtInput->SetSelStart(int32_t(m_txtInput->Text().size()));
}

// Each style reads its own messages; a "CANCEL" of any pop-up then restores the text as it was
// when the pop-up opened.
void TolvaInput::PopupWindowCallback(String& param, Currency& value)
{
    switch (m_style) {
    case tkInputStyles::tkCalendar:
        CalendarCallback();
        break;
    case tkInputStyles::tkCalculator:
        CalculatorCallback(param, value);
        break;
    case tkInputStyles::tkCombo:
        ListCallback(param, value);
        break;
    default:
        break;
    }
    if (param == Cancel)
        m_txtInput->SetText(m_txtInput->Tag());
    AnnounceDropDown();
}

// Whatever the message, the calendar's date becomes the text and the calendar goes.
void TolvaInput::CalendarCallback()
{
    InputPopups& popups = m_site.Popups();
    if (auto* calendar = popups.Loaded<CalendarPopup>()) {
        m_txtInput->SetText(Formatting().Format(Variant(calendar->Date()), OrDefault(m_formatString, DefaultDateFormat)));
        popups.Unload(PopupKind::Calendar);
    }
    CaretToEnd();
}

// The number being entered is the text itself; the state keeps the rest of the calculation.
void TolvaInput::CalculatorCallback(StringView param, Currency value)
{
    Formatter& formatter = Formatting();
    const String text = m_txtInput->Text();
    if (param == u"#") {
        const String digit = formatter.Format(Variant(value), u"");
        if (text == u"0" || m_calc.newEntry) {
            m_txtInput->SetText(digit);
            m_calc.newEntry = false;
        } else {
            m_txtInput->SetText(text + digit);
        }
    } else if (param == u"C") {
        m_txtInput->SetText(formatter.Format(Variant(value), CalculatorDisplayFormat));
        m_calc.pendingOp.clear();
        m_calc.accumulator = value;
        m_calc.newEntry = true;
    } else if (param == u".") {
        if (text.find(u'.') == String::npos)
            m_txtInput->SetText(text + u".");
        else
            m_site.Beep();
    } else if (param == u"B") {
        if (m_calc.newEntry)
            m_site.Beep();
        else
            m_txtInput->SetText(text.size() > 1 ? text.substr(0, text.size() - 1) : String(u"0"));
    } else if (param == u"S") {
        m_txtInput->SetText(formatter.Format(Variant(-formatter.TextToCurrency(text)), u""));
    } else if (param.empty()) {
        m_txtInput->SetText(formatter.Format(Variant(text), OrDefault(m_formatString, DefaultClosedFormat)));
    } else if (param == u"+" || param == u"-" || param == u"*" || param == u"/" || param == u"=") {
        CalculatorOperator(param);
    }
    CaretToEnd();
}

// An operator first applies the one pending to the shown value, then waits with its own; "="
// ends the calculation and closes the calculator.
void TolvaInput::CalculatorOperator(StringView op)
{
    Formatter& formatter = Formatting();
    if (m_calc.pendingOp != u"" && m_calc.pendingOp != u"=")
        m_txtInput->SetText(ApplyPendingOperator(m_calc, formatter.TextToCurrency(m_txtInput->Text()), formatter));
    m_calc.pendingOp = op;
    m_calc.accumulator = formatter.TextToCurrency(m_txtInput->Text());
    if (op != u"=") {
        m_calc.newEntry = true;
        return;
    }
    if (!m_formatString.empty())
        m_txtInput->SetText(formatter.Format(Variant(m_txtInput->Text()), m_formatString));
    m_site.Popups().Unload(PopupKind::Calculator);
}

// "SELECT" sets the list index to one below the item number but shows the item at the number
// itself: the two differ by one on purpose. The list stays open.
void TolvaInput::ListCallback(StringView param, Currency value)
{
    if (param == u"SELECT") {
        m_lstDummy.SetListIndex(Variant(value - Currency::FromInt(1)).ToInt16());
        m_txtInput->SetText(m_lstDummy.List(Variant(value).ToInt16()));
        m_txtInput->SetSelStart(0);
        m_txtInput->SetSelLength(int32_t(m_txtInput->Text().size()));
    } else if (param == Cancel) {
        m_site.Popups().Unload(PopupKind::List);
        m_lstDummy.SetListIndex(Variant(m_lstDummy.Tag()).ToInt16());
        m_txtInput->SetText(m_lstDummy.List(m_lstDummy.ListIndex()));
    }
}

} // namespace tolva
