#include "host/form/play_script.h"
#include "host/form/form_syntax_error.h"
#include <charconv>
#include <limits>

namespace tolva {

namespace {

constexpr size_t MaxSteps = 10000;
constexpr int32_t MaxWait = 60000;

std::vector<std::string_view> Words(std::string_view line)
{
    std::vector<std::string_view> words;
    size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && (line[i] == ' ' || line[i] == '\t' || line[i] == '\r'))
            ++i;
        size_t start = i;
        while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r')
            ++i;
        if (i > start)
            words.push_back(line.substr(start, i - start));
    }
    return words;
}

int32_t Number(std::string_view word, int line, int32_t low, int32_t high)
{
    int32_t value = 0;
    auto [end, ec] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (ec != std::errc() || end != word.data() + word.size() || value < low || value > high)
        throw FormSyntaxError(line,
            "\"" + std::string(word) + "\" is not a number from " + std::to_string(low) + " to "
                + std::to_string(high));
    return value;
}

struct Verb {
    std::string_view name;
    PlayStep::Kind kind;
    size_t minimum; // words after the verb
    size_t maximum;
};

constexpr Verb Verbs[] = {
    { "move", PlayStep::Kind::Move, 3, 3 },
    { "press", PlayStep::Kind::Press, 0, 1 },
    { "release", PlayStep::Kind::Release, 0, 1 },
    { "click", PlayStep::Kind::Click, 3, 3 },
    { "key", PlayStep::Kind::Key, 1, 1 },
    { "keydown", PlayStep::Kind::KeyDown, 1, 1 },
    { "keyup", PlayStep::Kind::KeyUp, 1, 1 },
    { "alt", PlayStep::Kind::Alt, 1, 1 },
    { "type", PlayStep::Kind::Type, 1, 1 },
    { "wait", PlayStep::Kind::Wait, 1, 1 },
    { "shot", PlayStep::Kind::Shot, 1, 1 },
    { "close", PlayStep::Kind::Close, 0, 0 },
};

bool SafeName(std::string_view name)
{
    for (char c : name)
        if (!((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '-'))
            return false;
    return !name.empty();
}

} // namespace

std::vector<PlayStep> ReadPlayScript(std::string_view text)
{
    std::vector<PlayStep> steps;
    int number = 0;
    while (!text.empty()) {
        ++number;
        const size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        const std::vector<std::string_view> words = Words(line);
        if (words.empty() || words[0].front() == '#')
            continue;
        const Verb* verb = nullptr;
        for (const Verb& candidate : Verbs)
            if (candidate.name == words[0])
                verb = &candidate;
        if (!verb)
            throw FormSyntaxError(number, "unknown step \"" + std::string(words[0]) + "\"");
        const size_t count = words.size() - 1;
        if (count < verb->minimum || count > verb->maximum)
            throw FormSyntaxError(number, "wrong number of values for " + std::string(verb->name));
        if (steps.size() == MaxSteps)
            throw FormSyntaxError(number, "more than 10000 steps");
        PlayStep step { verb->kind, {}, 0, 0, 0, false, number };
        switch (verb->kind) {
        case PlayStep::Kind::Move:
        case PlayStep::Kind::Click:
            step.target = FromUtf8(words[1]);
            step.x = Number(words[2], number, -10000, 10000);
            step.y = Number(words[3], number, -10000, 10000);
            break;
        case PlayStep::Kind::Press:
        case PlayStep::Kind::Release:
            if (count == 1 && words[1] != "left" && words[1] != "right")
                throw FormSyntaxError(number, "the button is left or right");
            step.rightButton = count == 1 && words[1] == "right";
            break;
        case PlayStep::Kind::Wait:
            step.milliseconds = Number(words[1], number, 0, MaxWait);
            break;
        case PlayStep::Kind::Shot:
            if (!SafeName(words[1]))
                throw FormSyntaxError(number, "a picture name has letters, digits, - and _ only");
            step.target = FromUtf8(words[1]);
            break;
        case PlayStep::Kind::Key:
        case PlayStep::Kind::KeyDown:
        case PlayStep::Kind::KeyUp:
        case PlayStep::Kind::Alt:
        case PlayStep::Kind::Type:
            step.target = FromUtf8(words[1]);
            break;
        case PlayStep::Kind::Close:
            break;
        }
        steps.push_back(std::move(step));
    }
    return steps;
}

} // namespace tolva
