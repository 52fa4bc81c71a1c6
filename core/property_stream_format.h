#pragma once
#include "core/memory_property_bag.h"
#include <cstdint>
#include <span>
#include <vector>

namespace tolva {

// The binary form of a control's property bag that IPersistStreamInit reads and writes:
//
//   header   "TKPS", format version (u16), header size (u16), payload size (u32), entries (u32)
//   entry    key length (u16) and UTF-16 key, type tag (u8), value
//   values   bool u8 | i16 | i32 | f32 | f64 | currency i64 | date f64 | text: u32 length, UTF-16
//            | font: name (u16 length, UTF-16), size i64 (points x 10,000), weight i16,
//              charset i16, flags u8 (1 italic, 2 underline, 4 strike-through)
//
// Little-endian throughout. Everything is bounded; a reader refuses whatever it does not fully
// understand rather than guess, and the writer refuses, before writing anything, whatever the
// reader would refuse: what is saved loads again.
namespace PropertyStream {

constexpr uint16_t Version = 1;
constexpr size_t HeaderSize = 16;
constexpr uint32_t MaxPayload = 1u << 20;
constexpr uint32_t MaxEntries = 4096;
constexpr uint16_t MaxKeyLength = 256;
constexpr uint16_t MaxFontNameLength = 256;

// Throws AutomationError STG_E_CANTSAVE, naming the reason, for values past the bounds: more
// than MaxPayload bytes or MaxEntries entries, a key or font name too long, a number that is
// not finite, a font size below 0 or past 32 bits of points x 10,000.
std::vector<uint8_t> Encode(const MemoryPropertyBag& bag);

struct Header {
    uint32_t payloadSize;
    uint32_t entries;
};

// Both throw AutomationError: STG_E_OLDDLL for a newer format version, STG_E_DOCFILECORRUPT for
// anything malformed (wrong signature, sizes past the bounds, values that do not parse).
Header DecodeHeader(std::span<const uint8_t, HeaderSize> bytes);
MemoryPropertyBag DecodePayload(const Header& header, std::span<const uint8_t> payload);

} // namespace PropertyStream

} // namespace tolva
