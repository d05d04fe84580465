// SPDX-License-Identifier: MIT
#include "glyphorium/services/settings/setting_json.h"

#include <locale.h>

#include <limits>
#include <nlohmann/json.hpp>

#include "glyphorium/text/json_text.h"

namespace glyph {

using nlohmann::json;

namespace {

// While an object of this class exists, the current thread uses the "C" locale. The JSON parser reads numbers
// with strtod(), which expects the decimal point of the current locale, and the host may have set another
// locale.
class JsonNumbers {
 public:
  JsonNumbers() : before_(uselocale(classic())) {}
  ~JsonNumbers() { uselocale(before_); }
  JsonNumbers(const JsonNumbers&) = delete;
  JsonNumbers& operator=(const JsonNumbers&) = delete;

 private:
  static locale_t classic() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;  // null if there is not enough memory; uselocale(null) changes nothing
  }
  locale_t before_;
};

// JSON text cannot contain a NUL byte. The parser would treat a NUL byte as the end of the text.
bool holdsNul(std::string_view text) {
  return text.find('\0') != std::string_view::npos;
}

// Receives the values that the parser reads. Keeps a value if SettingValue has a type for it, and stops the
// parser at any other value.
class Reader : public nlohmann::json_sax<json> {
 public:
  std::optional<SettingValue> value;

  bool boolean(bool read) override { return take(read); }
  bool number_integer(std::int64_t read) override { return take(read); }
  bool number_unsigned(std::uint64_t read) override {
    return read <= std::numeric_limits<std::int64_t>::max() && take(static_cast<std::int64_t>(read));
  }
  bool number_float(double read, const std::string& digits) override {
    // The parser also passes integers that do not fit into 64 bits to this function, as rounded numbers. They
    // are rejected.
    return digits.find_first_of(".eE") != std::string::npos && take(read);
  }
  bool string(std::string& read) override {
    if (!list_) return take(std::move(read));
    list_->push_back(std::move(read));
    return true;
  }
  bool start_array(std::size_t) override {
    if (list_) return false;
    list_.emplace();
    return true;
  }
  bool end_array() override {
    value.emplace(std::move(*list_));
    list_.reset();
    return true;
  }
  bool null() override { return false; }
  bool start_object(std::size_t) override { return false; }
  bool end_object() override { return false; }
  bool key(std::string&) override { return false; }
  bool binary(json::binary_t&) override { return false; }
  bool parse_error(std::size_t, const std::string&, const json::exception&) override { return false; }

 private:
  template <class T>
  bool take(T&& read) {
    if (list_) return false;
    value.emplace(std::forward<T>(read));
    return true;
  }
  std::optional<std::vector<std::string>> list_;
};

}  // namespace

std::optional<std::string> settingToJson(const SettingValue& value) {
  if (const auto* const raw = std::get_if<RawJson>(&value)) {
    const JsonNumbers numbers;
    return !holdsNul(raw->text) && json::accept(raw->text) ? std::optional(raw->text) : std::nullopt;
  }
  return std::visit(
      [](const auto& plain) -> std::string {
        using Type = std::decay_t<decltype(plain)>;
        if constexpr (std::is_same_v<Type, RawJson>) {
          return {};  // unreachable: RawJson was handled above
        } else if constexpr (std::is_arithmetic_v<Type>) {
          return json(plain).dump();
        } else {
          return jsonText(plain);
        }
      },
      value);
}

SettingValue settingFromJson(std::string_view text) {
  const JsonNumbers numbers;
  Reader reader;
  if (!holdsNul(text) && json::sax_parse(text, &reader) && reader.value) return *std::move(reader.value);
  return RawJson{std::string(text)};
}

}  // namespace glyph
