#pragma once
#include "core/variant.h"
#include <fuzzer/FuzzedDataProvider.h>
#include <span>

namespace tolva::fuzz {

// Values as a hostile form or client hands them over: every type a bag can answer with, with a
// bias to the edges (empty and huge texts, lone surrogates, NaN, infinities, the ends of every
// integer range, fonts with sizes, weights and charsets no font object would report).
String FuzzedText(FuzzedDataProvider& data);
// A text made of up to maxPieces of the given pieces, now and then a raw character between them,
// and one time in eight raw text: what a parser of those pieces is fed.
String FuzzedPieces(FuzzedDataProvider& data, std::span<const StringView> pieces, size_t maxPieces);
Font FuzzedFont(FuzzedDataProvider& data);
Variant FuzzedValue(FuzzedDataProvider& data);

// Two lists of values alike, NaN equal to itself (a value read back as it was saved).
bool SameValue(const Variant& a, const Variant& b);

// Stops the run with a message: libFuzzer records the input as a crash.
[[noreturn]] void Fail(const char* what);

} // namespace tolva::fuzz
