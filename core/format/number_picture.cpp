#include "core/format/number_picture.h"
#include "core/format/decimal_digits.h"
#include <algorithm>

namespace tolva {

namespace {

bool IsPlaceholder(const PictureItem& item)
{
    return item.Is(u'0') || item.Is(u'#');
}

bool IsExponentAt(const PictureSection& section, size_t i)
{
    return (section[i].Is(u'E') || section[i].Is(u'e')) && i + 1 < section.size()
        && (section[i + 1].Is(u'+') || section[i + 1].Is(u'-'));
}

// The index of the last placeholder of the whole part (before the point or the exponent).
size_t LastWholePlaceholder(const PictureSection& section)
{
    size_t last = 0;
    for (size_t i = 0; i < section.size() && !section[i].Is(u'.') && !IsExponentAt(section, i); ++i)
        if (IsPlaceholder(section[i]))
            last = i;
    return last;
}

String Widened(const std::string& text)
{
    return String(text.begin(), text.end());
}

} // namespace

NumberPicture::NumberPicture(const PictureSection& section)
{
    enum class Phase { Whole, Fraction, Exponent } phase = Phase::Whole;
    int32_t firstZero = -1;
    const size_t lastWholePlaceholder = LastWholePlaceholder(section);
    for (size_t i = 0; i < section.size(); ++i) {
        const PictureItem& item = section[i];
        using Role = Part::Role;
        if (IsPlaceholder(item)) {
            if (phase == Phase::Whole) {
                if (item.Is(u'0') && firstZero < 0)
                    firstZero = m_wholePlaceholders;
                ++m_wholePlaceholders;
                m_parts.push_back({ item, Role::Digit });
            } else if (phase == Phase::Fraction) {
                ++m_fractionPlaceholders;
                if (item.Is(u'0'))
                    m_requiredFractionDigits = m_fractionPlaceholders;
                m_parts.push_back({ item, Role::Digit });
            } else {
                ++m_exponentDigits;
                m_parts.push_back({ item, Role::ExponentDigit });
            }
        } else if (item.Is(u'.') && phase == Phase::Whole) {
            phase = Phase::Fraction;
            m_parts.push_back({ item, Role::Point });
        } else if (item.Is(u',') && phase != Phase::Exponent) {
            if (phase == Phase::Fraction)
                continue; // no meaning after the point
            if (m_wholePlaceholders == 0) {
                m_parts.push_back({ item, Role::Literal });
                continue;
            }
            // Between placeholders of the whole part it groups; after the last one it scales.
            if (i < lastWholePlaceholder)
                m_grouping = true;
            else
                m_scale -= 3;
        } else if (phase != Phase::Exponent && IsExponentAt(section, i)) {
            m_exponentPlus = section[i + 1].Is(u'+');
            phase = Phase::Exponent;
            m_parts.push_back({ item, Role::ExponentMark });
            ++i;
        } else {
            if (item.Is(u'%'))
                m_scale += 2;
            m_parts.push_back({ item, Role::Literal });
        }
    }
    m_requiredWholeDigits = firstZero < 0 ? 0 : m_wholePlaceholders - firstZero;
}

DecimalText NumberPicture::Mantissa(const DecimalText& number, int32_t& exponent) const
{
    exponent = 0;
    if (number.digits.empty())
        return number;
    exponent = Magnitude(number) - m_wholePlaceholders;
    DecimalText mantissa = RoundedToFraction(Scaled(number, -exponent), m_fractionPlaceholders);
    if (Magnitude(mantissa) > m_wholePlaceholders) { // 9.99 rounded up to 10.0
        ++exponent;
        mantissa = Scaled(mantissa, -1);
    }
    return mantissa;
}

std::vector<std::string> NumberPicture::SpreadWhole(const std::string& digits) const
{
    std::vector<std::string> shown(static_cast<size_t>(m_wholePlaceholders));
    size_t left = digits.size();
    for (size_t k = shown.size(); k-- > 0 && left > 0;) {
        const size_t take = k == 0 ? left : 1;
        shown[k] = digits.substr(left - take, take);
        left -= take;
    }
    return shown;
}

String NumberPicture::Format(const DecimalText& magnitude, bool minusSign) const
{
    const bool scientific = std::any_of(
        m_parts.begin(), m_parts.end(), [](const Part& part) { return part.role == Part::Role::ExponentMark; });
    DecimalText number = Scaled(magnitude, m_scale);
    int32_t exponent = 0;
    number = scientific ? Mantissa(number, exponent) : RoundedToFraction(number, m_fractionPlaceholders);

    std::string whole = WholeDigits(number);
    if (int32_t(whole.size()) < m_requiredWholeDigits)
        whole.insert(0, size_t(m_requiredWholeDigits) - whole.size(), '0');
    const std::vector<std::string> wholeShown = SpreadWhole(whole);

    std::string fraction = FractionDigits(number, m_fractionPlaceholders);
    while (int32_t(fraction.size()) > m_requiredFractionDigits && fraction.back() == '0')
        fraction.pop_back();

    std::string exponentText = std::to_string(exponent < 0 ? -int64_t(exponent) : int64_t(exponent));
    if (int32_t(exponentText.size()) < m_exponentDigits)
        exponentText.insert(0, size_t(m_exponentDigits) - exponentText.size(), '0');

    String out;
    bool signShown = !minusSign;
    const auto showSign = [&] {
        if (!signShown)
            out += u'-';
        signShown = true;
    };
    size_t wholeIndex = 0, fractionIndex = 0, digitsLaid = 0;
    bool inFraction = false, exponentShown = false;
    for (const Part& part : m_parts) {
        switch (part.role) {
        case Part::Role::Literal:
            out += part.item.IsLiteral() ? part.item.literal : String(1, part.item.symbol);
            break;
        case Part::Role::Digit:
            showSign();
            if (inFraction) {
                if (fractionIndex < fraction.size())
                    out += char16_t(fraction[fractionIndex]);
                ++fractionIndex;
                break;
            }
            for (char digit : wholeShown[wholeIndex++]) {
                out += char16_t(digit);
                ++digitsLaid;
                const size_t after = whole.size() - digitsLaid;
                if (m_grouping && after > 0 && after % 3 == 0)
                    out += u',';
            }
            break;
        case Part::Role::Point:
            showSign();
            // A picture without whole-number placeholders still shows the whole number.
            if (m_wholePlaceholders == 0)
                out += Widened(whole);
            out += u'.';
            inFraction = true;
            break;
        case Part::Role::ExponentMark:
            showSign();
            out += part.item.symbol;
            if (exponent < 0)
                out += u'-';
            else if (m_exponentPlus)
                out += u'+';
            break;
        case Part::Role::ExponentDigit:
            if (!exponentShown)
                out += Widened(exponentText);
            exponentShown = true;
            break;
        }
    }
    if (!signShown)
        out.insert(0, 1, u'-');
    return out;
}

} // namespace tolva
