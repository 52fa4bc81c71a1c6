#include "platform/win32/com/dispatch_arguments.h"
#include "platform/win32/com/argument_conversion.h"

namespace tolva::win32 {

DispatchArguments::DispatchArguments(const DISPPARAMS& params, bool assignment, std::span<const TypeSpec> parameters)
    : m_params(params)
    , m_count(assignment && params.cArgs > 0 ? params.cArgs - 1 : params.cArgs)
    , m_parameters(parameters)
{ }

bool DispatchArguments::Has(size_t index) const
{
    return index < m_count && !IsPassedAsMissing(index);
}

bool DispatchArguments::IsPassedAsMissing(size_t index) const
{
    return Guard(DispatchIndex(index), [&] { return IsMissing(At(index)); });
}

} // namespace tolva::win32
