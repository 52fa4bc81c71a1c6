#pragma once
#include <stdexcept>
#include <string>

namespace tolva {

// A form file that cannot be read: the 1-based line and why. what() reads "line N: reason".
class FormSyntaxError : public std::runtime_error {
public:
    FormSyntaxError(int line, const std::string& reason);

    int Line() const { return m_line; }
    const std::string& Reason() const { return m_reason; }

private:
    int m_line;
    std::string m_reason;
};

} // namespace tolva
