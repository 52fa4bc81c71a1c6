#pragma once
#include "core/format/formatter.h"
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tolva::test {

// One line of a corpus: what is asked, and where the system's answer under Wine is known to
// differ from the platform's, the platform's answer, Wine's and why they differ.
struct CorpusCase {
    int line = 0;
    Variant value; // the format corpus
    String text; // the format's expression, or the parse corpus's text
    struct WineDifference {
        std::string windows, wine, reason;
    };
    std::optional<WineDifference> wineDifference;
};

// Format corpus lines: type TAB value TAB format [TAB Windows TAB Wine TAB reason], the type
// being d (double), f (single), c (currency, decimal text), t (date serial), s (text),
// b (Boolean, True or False), i (32-bit), h (16-bit). Parse corpus lines: text [TAB Windows
// TAB Wine TAB reason]. Lines starting with # and blank lines are skipped.
std::vector<CorpusCase> ReadFormatCorpus(const char* path);
std::vector<CorpusCase> ReadParseCorpus(const char* path);

// What a call answers, as text: its result, or "<error N>" for a run-time error N.
std::string Outcome(const std::function<String()>& call);

// Everything the parsing side of a formatter answers for a text, on one line.
std::string ParseOutcome(Formatter& formatter, StringView text);

} // namespace tolva::test
