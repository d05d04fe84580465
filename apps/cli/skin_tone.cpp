// SPDX-License-Identifier: MIT
#include "glyphorium/state/skin_tone.h"

#include "commands.h"
#include "glyphorium/characters/emoji.h"

namespace cli {

int skinTone(Output& output, const std::string& name) {
  if (const auto tone = glyph::skinToneNamed(name); tone && !glyph::setPreferredSkinTone(*tone)) {
    complainOfFailure("the choice could not be saved");
    return notWritten;
  }
  const glyph::SkinTone tone = glyph::preferredSkinTone();
  output.printLine(std::string(glyph::skinToneName(tone)) + "\t" + glyph::withSkinTone("👋", tone));
  return found;
}

}  // namespace cli
