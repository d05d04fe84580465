// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct UConverter;

namespace cli {

/// The name of an encoding is any name that ICU knows, in any letter case: "cp1252", "latin1", "Shift_JIS".
bool isEncoding(const std::string& name);

/// Returns the names of all encodings, each encoding once.
std::vector<std::string> encodingNames();

/// Returns the bytes of the text in the encoding, in hexadecimal digits: "82 A0". Returns nullopt if the
/// encoding does not contain a character of the text.
std::optional<std::string> bytesInEncoding(const std::string& encoding, std::string_view text);

/// Returns the text of the bytes in the encoding, as UTF-8. Returns nullopt if some bytes are ill-formed, or
/// if there is no text.
std::optional<std::string> textOfBytes(const std::string& encoding, std::string_view bytes);

/// Returns the bytes in hexadecimal digits: "82 A0".
std::string hexOfBytes(std::string_view bytes);

/// Returns the bytes of a text such as "82a0", "82 A0", "0x82 0xA0" or "\x82\xA0". Returns nullopt if the
/// text is something else.
std::optional<std::string> bytesOfHex(std::string_view text);

/// Converts bytes in a given encoding to UTF-8. The bytes may arrive in pieces.
class Decoder {
 public:
  using OnPiece = std::function<void(std::string_view)>;

  /// isEncoding() must be true for the encoding. The functions receive the text and the ill-formed byte
  /// sequences, in order.
  Decoder(const std::string& encoding, OnPiece onText, OnPiece onBadBytes);
  ~Decoder();
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;

  void add(std::string_view bytes) { decode(bytes, false); }
  void end() { decode({}, true); }

 private:
  void decode(std::string_view bytes, bool isEnd);

  UConverter* converter_;
  OnPiece onText_;
  OnPiece onBadBytes_;
};

}  // namespace cli
