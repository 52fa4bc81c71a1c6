#include "core/format/picture_lexer.h"
#include <optional>

namespace tolva {

namespace {

std::optional<PictureKind> KindOfSymbol(const PictureSection& section, size_t i)
{
    const char16_t c = AsciiLower(section[i].symbol);
    if (StringView(u"0#.,%").find(c) != StringView::npos)
        return PictureKind::Number;
    if (StringView(u"dmyhnswqc/:").find(c) != StringView::npos)
        return PictureKind::Date;
    if (c == u't' && SpellsAt(section, i, u"ttttt"))
        return PictureKind::Date;
    if (c == u'a' && (SpellsAt(section, i, u"am/pm") || SpellsAt(section, i, u"ampm") || SpellsAt(section, i, u"a/p")))
        return PictureKind::Date;
    if (StringView(u"@&<>!").find(c) != StringView::npos)
        return PictureKind::Text;
    return std::nullopt;
}

} // namespace

bool SpellsAt(const PictureSection& section, size_t i, StringView word)
{
    if (i + word.size() > section.size())
        return false;
    for (size_t k = 0; k < word.size(); ++k)
        if (section[i + k].IsLiteral() || AsciiLower(section[i + k].symbol) != word[k])
            return false;
    return true;
}

PictureKind KindOfPicture(const std::vector<PictureSection>& sections)
{
    for (const PictureSection& section : sections)
        for (size_t i = 0; i < section.size(); ++i)
            if (!section[i].IsLiteral())
                if (const auto kind = KindOfSymbol(section, i))
                    return *kind;
    return PictureKind::Number;
}

std::vector<PictureSection> ReadPictureSections(StringView expression)
{
    std::vector<PictureSection> sections(1);
    for (size_t i = 0; i < expression.size(); ++i) {
        const char16_t c = expression[i];
        if (c == u'"') {
            const size_t end = expression.find(u'"', i + 1);
            const size_t stop = end == StringView::npos ? expression.size() : end;
            sections.back().push_back({ 0, String(expression.substr(i + 1, stop - i - 1)) });
            i = stop;
        } else if (c == u'\\') {
            if (i + 1 < expression.size())
                ++i;
            sections.back().push_back({ 0, String(1, expression[i]) });
        } else if (c == u';') {
            sections.emplace_back();
        } else {
            sections.back().push_back({ c, {} });
        }
    }
    return sections;
}

} // namespace tolva
