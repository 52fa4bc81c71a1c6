#include "fuzz/fuzzed_values.h"
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace tolva::fuzz {

namespace {

template <class T> T Edge(FuzzedDataProvider& data)
{
    using Limits = std::numeric_limits<T>;
    switch (data.ConsumeIntegralInRange<int>(0, 5)) {
    case 0:
        return T(0);
    case 1:
        return T(-1);
    case 2:
        return Limits::lowest();
    case 3:
        return Limits::max();
    case 4:
        return T(1);
    default:
        return data.ConsumeIntegral<T>();
    }
}

template <class T> T Real(FuzzedDataProvider& data)
{
    using Limits = std::numeric_limits<T>;
    switch (data.ConsumeIntegralInRange<int>(0, 7)) {
    case 0:
        return Limits::quiet_NaN();
    case 1:
        return Limits::infinity();
    case 2:
        return -Limits::infinity();
    case 3:
        return Limits::max();
    case 4:
        return Limits::denorm_min();
    case 5:
        return -T(0);
    case 6:
        return data.ConsumeFloatingPoint<T>();
    default:
        return T(data.ConsumeIntegralInRange<int>(-100000, 100000)) / T(4);
    }
}

} // namespace

String FuzzedText(FuzzedDataProvider& data)
{
    const size_t length = data.ConsumeIntegralInRange<size_t>(0, 64);
    String text;
    for (size_t i = 0; i < length && data.remaining_bytes() > 0; ++i)
        text.push_back(char16_t(data.ConsumeIntegral<uint16_t>()));
    // Now and then far more than any form holds (past the 16-bit lengths): the same text again
    // and again.
    if (data.ConsumeIntegralInRange<int>(0, 15) == 0) {
        const size_t length = data.ConsumeIntegralInRange<size_t>(1, 70000);
        const String pattern = text.empty() ? u"&" : text;
        String huge;
        huge.reserve(length);
        while (huge.size() < length)
            huge += pattern;
        huge.resize(length);
        text = std::move(huge);
    }
    return text;
}

String FuzzedPieces(FuzzedDataProvider& data, std::span<const StringView> pieces, size_t maxPieces)
{
    if (data.ConsumeIntegralInRange<int>(0, 7) == 0)
        return FuzzedText(data);
    String text;
    const size_t count = data.ConsumeIntegralInRange<size_t>(0, maxPieces);
    for (size_t i = 0; i < count && data.remaining_bytes() > 0; ++i) {
        if (data.ConsumeIntegralInRange<int>(0, 15) == 0)
            text.push_back(char16_t(data.ConsumeIntegral<uint16_t>()));
        else
            text += pieces[data.ConsumeIntegralInRange<size_t>(0, pieces.size() - 1)];
    }
    return text;
}

Font FuzzedFont(FuzzedDataProvider& data)
{
    Font font;
    font.name = FuzzedText(data);
    font.size = Real<double>(data);
    font.weight = Edge<int16_t>(data);
    font.charset = Edge<int16_t>(data);
    font.italic = data.ConsumeBool();
    font.underline = data.ConsumeBool();
    font.strikethrough = data.ConsumeBool();
    return font;
}

Variant FuzzedValue(FuzzedDataProvider& data)
{
    switch (data.ConsumeIntegralInRange<int>(0, 9)) {
    case 0:
        return Variant();
    case 1:
        return Variant(data.ConsumeBool());
    case 2:
        return Variant(Edge<int16_t>(data));
    case 3:
        return Variant(Edge<int32_t>(data));
    case 4:
        return Variant(Real<float>(data));
    case 5:
        return Variant(Real<double>(data));
    case 6:
        return Variant(Currency::FromRaw(Edge<int64_t>(data)));
    case 7:
        return Variant(OleDate(Real<double>(data)));
    case 8:
        return Variant(FuzzedText(data));
    default:
        return Variant(FuzzedFont(data));
    }
}

bool SameValue(const Variant& a, const Variant& b)
{
    if (a.Value().index() != b.Value().index())
        return false;
    return std::visit(
        [&b](const auto& x) {
            using T = std::decay_t<decltype(x)>;
            const T& y = std::get<T>(b.Value());
            if constexpr (std::is_same_v<T, float> || std::is_same_v<T, double>)
                return x == y || (std::isnan(x) && std::isnan(y));
            else if constexpr (std::is_same_v<T, OleDate>)
                return x.Serial() == y.Serial() || (std::isnan(x.Serial()) && std::isnan(y.Serial()));
            else if constexpr (std::is_same_v<T, Font>)
                return x.name == y.name && (x.size == y.size || (std::isnan(x.size) && std::isnan(y.size)))
                    && x.weight == y.weight && x.charset == y.charset && x.italic == y.italic
                    && x.underline == y.underline && x.strikethrough == y.strikethrough;
            else
                return x == y;
        },
        a.Value());
}

void Fail(const char* what)
{
    std::fprintf(stderr, "fuzz check failed: %s\n", what);
    std::abort();
}

} // namespace tolva::fuzz
