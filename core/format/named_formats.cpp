#include "core/format/named_formats.h"

namespace tolva {

namespace {

struct Named {
    StringView name;
    NamedFormat format;
    StringView picture;
};

constexpr Named Formats[] = {
    { u"General Number", NamedFormat::GeneralNumber, u"" },
    { u"Currency", NamedFormat::Currency, u"$#,##0.00;($#,##0.00)" },
    { u"Fixed", NamedFormat::Fixed, u"0.00" },
    { u"Standard", NamedFormat::Standard, u"#,##0.00" },
    { u"Percent", NamedFormat::Percent, u"0.00%" },
    { u"Scientific", NamedFormat::Scientific, u"0.00E+00" },
    { u"Yes/No", NamedFormat::YesNo, u"" },
    { u"True/False", NamedFormat::TrueFalse, u"" },
    { u"On/Off", NamedFormat::OnOff, u"" },
    { u"General Date", NamedFormat::GeneralDate, u"" },
    { u"Long Date", NamedFormat::LongDate, u"dddddd" },
    { u"Medium Date", NamedFormat::MediumDate, u"dd-mmm-yy" },
    { u"Short Date", NamedFormat::ShortDate, u"ddddd" },
    { u"Long Time", NamedFormat::LongTime, u"ttttt" },
    { u"Medium Time", NamedFormat::MediumTime, u"hh:nn AMPM" },
    { u"Short Time", NamedFormat::ShortTime, u"hh:nn" },
};

} // namespace

std::optional<NamedFormat> FindNamedFormat(StringView expression)
{
    for (const Named& named : Formats)
        if (EqualsIgnoringCase(expression, named.name))
            return named.format;
    return std::nullopt;
}

StringView PictureOf(NamedFormat format)
{
    return Formats[int(format)].picture;
}

bool IsDateFormat(NamedFormat format)
{
    return format >= NamedFormat::GeneralDate;
}

std::optional<BooleanWords> BooleanWordsOf(NamedFormat format)
{
    switch (format) {
    case NamedFormat::YesNo: return BooleanWords { u"No", u"Yes" };
    case NamedFormat::TrueFalse: return BooleanWords { u"False", u"True" };
    case NamedFormat::OnOff: return BooleanWords { u"Off", u"On" };
    default: return std::nullopt;
    }
}

} // namespace tolva
