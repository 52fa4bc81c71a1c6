#pragma once
#include "core/currency.h"
#include "core/string.h"

namespace tolva {

// The running calculation of a text entry control whose calculator is open. The number being
// entered is the control's text; this is what the text does not show.
struct CalculatorState {
    String pendingOp; // the operator key last pressed: "+", "-", "*", "/", "=" or empty
    // The left operand: the value shown when the operator was pressed. Every value it takes
    // is read through currency, so it is kept as currency and + and - stay exact at the ends of
    // the range.
    Currency accumulator;
    bool newEntry = false; // the next digit starts a new number
};

// The pending operator applied to the accumulator and the shown value x: + and - in currency
// (exact; Overflow past its range), * and / in double (Division by zero for x / 0, Overflow
// for 0 / 0 and for results that are no finite number). The text of the result, converted
// without a format, comes back; empty when no operator is pending ("" or "=").
class Formatter;
String ApplyPendingOperator(const CalculatorState& state, Currency x, Formatter& formatter);

} // namespace tolva
