#include "host/form/form_syntax_error.h"

namespace tolva {

FormSyntaxError::FormSyntaxError(int line, const std::string& reason)
    : std::runtime_error("line " + std::to_string(line) + ": " + reason)
    , m_line(line)
    , m_reason(reason)
{ }

} // namespace tolva
