// SPDX-License-Identifier: MIT
#include "encoding.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>
#include <unicode/unistr.h>

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <utility>

namespace cli {
namespace {

// Returns a converter that stops at what it cannot convert.
UConverter* openConverter(const std::string& encoding) {
  UErrorCode status = U_ZERO_ERROR;
  UConverter* const converter = ucnv_open(encoding.c_str(), &status);
  ucnv_setToUCallBack(converter, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  ucnv_setFromUCallBack(converter, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  return converter;
}

}  // namespace

bool isEncoding(const std::string& name) {
  // An alias is checked first, because ICU takes other names for paths of files with converters.
  UErrorCode status = U_ZERO_ERROR;
  if (name.empty() || ucnv_countAliases(name.c_str(), &status) == 0) return false;
  UConverter* const converter = ucnv_open(name.c_str(), &status);
  if (converter) ucnv_close(converter);
  return U_SUCCESS(status);
}

std::vector<std::string> encodingNames() {
  std::vector<std::string> names;
  for (int32_t i = 0; i < ucnv_countAvailable(); ++i) {
    const char* const canonical = ucnv_getAvailableName(i);
    if (std::string_view(canonical).find(',') != std::string_view::npos) continue;  // options of an encoding
    UErrorCode status = U_ZERO_ERROR;
    const char* name = ucnv_getStandardName(canonical, "MIME", &status);
    if (!name) name = ucnv_getStandardName(canonical, "IANA", &status);
    names.emplace_back(name ? name : canonical);
  }
  return names;
}

std::optional<std::string> bytesInEncoding(const std::string& encoding, std::string_view text) {
  UConverter* const converter = openConverter(encoding);
  const icu::UnicodeString units =
      icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())});
  std::string bytes(
      static_cast<std::size_t>(UCNV_GET_MAX_BYTES_FOR_STRING(units.length(), ucnv_getMaxCharSize(converter))),
      '\0');
  UErrorCode status = U_ZERO_ERROR;
  const int32_t size = ucnv_fromUChars(converter, bytes.data(), static_cast<int32_t>(bytes.size()),
                                       units.getBuffer(), units.length(), &status);
  ucnv_close(converter);
  if (U_FAILURE(status)) return std::nullopt;
  return hexOfBytes(std::string_view(bytes).substr(0, static_cast<std::size_t>(size)));
}

Decoder::Decoder(const std::string& encoding, OnPiece onText, OnPiece onBadBytes)
    : converter_(openConverter(encoding)), onText_(std::move(onText)), onBadBytes_(std::move(onBadBytes)) {}

Decoder::~Decoder() {
  ucnv_close(converter_);
}

void Decoder::decode(std::string_view bytes, bool isEnd) {
  const char* next = bytes.data();
  const char* const end = next + bytes.size();
  std::u16string text;
  const auto giveText = [&] {
    std::string utf8;
    icu::UnicodeString(false, text.data(), static_cast<int32_t>(text.size())).toUTF8String(utf8);
    if (!utf8.empty()) onText_(utf8);
    text.clear();
  };
  for (;;) {
    char16_t units[1024];
    char16_t* unitsEnd = units;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUnicode(converter_, &unitsEnd, std::end(units), &next, end, nullptr, isEnd ? 1 : 0, &status);
    text.append(units, unitsEnd);
    if (status == U_BUFFER_OVERFLOW_ERROR) continue;
    giveText();
    if (U_SUCCESS(status)) return;
    char bad[128];
    int8_t size = sizeof bad - 1;
    status = U_ZERO_ERROR;
    ucnv_getInvalidChars(converter_, bad, &size, &status);
    if (U_FAILURE(status) || size == 0) return;  // not a fault of the bytes, and nothing to go on with
    onBadBytes_({bad, static_cast<std::size_t>(size)});
  }
}

std::optional<std::string> textOfBytes(const std::string& encoding, std::string_view bytes) {
  std::string result;
  bool isGood = true;
  Decoder decoder(
      encoding, [&](std::string_view text) { result += text; }, [&](std::string_view) { isGood = false; });
  decoder.add(bytes);
  decoder.end();
  return isGood && !result.empty() ? std::optional(result) : std::nullopt;
}

std::string hexOfBytes(std::string_view bytes) {
  std::string hex;
  for (const char byte : bytes) {
    char digits[4];
    std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned char>(byte));
    hex += (hex.empty() ? "" : " ") + std::string(digits);
  }
  return hex;
}

std::optional<std::string> bytesOfHex(std::string_view text) {
  std::string digits;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view rest = text.substr(i);
    if (rest.front() == ' ' || rest.front() == ',') continue;
    if (rest.starts_with("0x") || rest.starts_with("\\x"))
      ++i;
    else
      digits += rest.front();
  }
  std::string bytes;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const std::string_view two = std::string_view(digits).substr(i, 2);
    std::uint8_t byte = 0;
    const auto [end, fault] = std::from_chars(two.data(), two.data() + two.size(), byte, 16);
    if (fault != std::errc() || end != two.data() + 2) return std::nullopt;
    bytes += static_cast<char>(byte);
  }
  return bytes.empty() ? std::nullopt : std::optional(bytes);
}

}  // namespace cli
