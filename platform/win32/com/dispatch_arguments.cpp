#include "platform/win32/com/dispatch_arguments.h"

namespace tolva::win32 {

DispatchArguments::DispatchArguments(const DISPPARAMS& params, bool assignment)
    : m_params(params)
    , m_count(assignment && params.cArgs > 0 ? params.cArgs - 1 : params.cArgs)
{ }

} // namespace tolva::win32
