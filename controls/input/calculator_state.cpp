#include "controls/input/calculator_state.h"
#include "core/automation_error.h"
#include "core/format/formatter.h"
#include <cmath>

namespace tolva {

namespace {

// A double result as the language's arithmetic gives it: no infinity or NaN comes out.
double Checked(double result, bool divisionByZero)
{
    if (divisionByZero)
        throw AutomationError::RunTime(RunTimeError::DivisionByZero);
    if (!std::isfinite(result))
        throw AutomationError::RunTime(RunTimeError::Overflow);
    return result;
}

} // namespace

String ApplyPendingOperator(const CalculatorState& state, Currency x, Formatter& formatter)
{
    const StringView op = state.pendingOp;
    if (op == u"+")
        return formatter.Format(Variant(state.accumulator + x), u"");
    if (op == u"-")
        return formatter.Format(Variant(state.accumulator - x), u"");
    const double left = state.accumulator.ToDouble();
    const double right = x.ToDouble();
    if (op == u"*")
        return formatter.Format(Variant(Checked(right * left, false)), u"");
    if (op == u"/")
        return formatter.Format(Variant(Checked(left / right, right == 0 && left != 0)), u"");
    return {};
}

} // namespace tolva
