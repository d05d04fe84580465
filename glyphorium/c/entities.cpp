// SPDX-License-Identifier: MIT
#include "glyphorium/c/entities.h"

#include "glyphorium/c/handles.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/display.h"
#include "glyphorium/search/resolving.h"
#include "glyphorium/toolkit/copy_forms.h"

using namespace glyph::c;
using glyph::Entity;

namespace {

glyphorium_entity* newHandle(Entity entity) {
  return const_cast<glyphorium_entity*>(handleOf(*new Entity(std::move(entity))));
}

glyphorium_optional_bool optionalBool(const std::optional<bool>& value) {
  if (!value) return GLYPHORIUM_ABSENT;
  return *value ? GLYPHORIUM_YES : GLYPHORIUM_NO;
}

// Returns a pointer to a member of the enrichment. If the entity has no enrichment, the member has its
// default value.
template <class Member>
auto enrichmentOf(const glyphorium_entity* entity, Member member) {
  using Value = std::decay_t<decltype(std::declval<const glyph::AdditionalData&>().*member)>;
  if (!entity) setStatus(GLYPHORIUM_INVALID_ARGUMENT);
  static const Value absent{};
  return entity && entityOf(entity).additional ? &((*entityOf(entity).additional).*member) : &absent;
}

const glyph::AdditionalDataAdvice* noteAt(const glyphorium_entity* entity, size_t index) {
  const auto* const notes = enrichmentOf(entity, &glyph::AdditionalData::advice);
  if (index < notes->size()) return &(*notes)[index];
  return InvalidArgument();
}

}  // namespace

size_t glyphorium_entities_count(const glyphorium_entities* entities) {
  if (!entities) return InvalidArgument();
  return entities->list.size();
}

const glyphorium_entity* glyphorium_entities_at(const glyphorium_entities* entities, size_t index) {
  if (!entities || index >= entities->list.size()) return InvalidArgument();
  return handleOf(entities->list[index]);
}

void glyphorium_entities_free(glyphorium_entities* entities) {
  delete entities;
}

glyphorium_entities* glyphorium_entities_decode(const char* table, size_t table_size, const char* enrichment,
                                                size_t enrichment_size) {
  if (!table) return InvalidArgument();
  return guarded([=]() -> glyphorium_entities* {
    const glyph::Glyphorium decoder;
    auto rows = decoder.getComputedEntitiesFrom(textOf(table, table_size));
    if (!rows) return InvalidArgument();
    std::optional<std::vector<glyph::AdditionalData>> additional;
    if (enrichment) additional = decoder.getAdditionalDataFrom(textOf(enrichment, enrichment_size));
    return handleOf(decoder.getEntitiesByEnriching(*std::move(rows), additional));
  });
}

glyphorium_entity* glyphorium_entity_of(uint32_t code_point) {
  if (code_point > 0x10FFFF || (code_point >= 0xD800 && code_point <= 0xDFFF)) return InvalidArgument();
  return guarded([=] { return newHandle(glyph::entityOf(code_point)); });
}

glyphorium_entity* glyphorium_entity_from_hex(const char* hex) {
  if (!hex) return InvalidArgument();
  return guarded([=] { return newHandle(glyph::Unicode(hex).computedEntity().generateEntity()); });
}

glyphorium_entity* glyphorium_entity_copy(const glyphorium_entity* entity) {
  if (!entity) return InvalidArgument();
  return guarded([=] { return newHandle(entityOf(entity)); });
}

void glyphorium_entity_free(glyphorium_entity* entity) {
  if (entity) delete &entityOf(entity);
}

#define TEXT_OF_RECORD(function, member)                      \
  glyphorium_text function(const glyphorium_entity* entity) { \
    if (!entity) return InvalidArgument();                    \
    return borrowed(entityOf(entity).computed.member.view()); \
  }
TEXT_OF_RECORD(glyphorium_entity_hex, hex)
TEXT_OF_RECORD(glyphorium_entity_html_hex, htmlHex)
TEXT_OF_RECORD(glyphorium_entity_html_decimal, htmlDecimal)
TEXT_OF_RECORD(glyphorium_entity_symbol, symbol)
TEXT_OF_RECORD(glyphorium_entity_table_name, fallbackName)
TEXT_OF_RECORD(glyphorium_entity_group, group)
#undef TEXT_OF_RECORD

int64_t glyphorium_entity_decimal(const glyphorium_entity* entity) {
  if (!entity) return InvalidArgument();
  return entityOf(entity).computed.decimal;
}

glyphorium_text glyphorium_entity_name(const glyphorium_entity* entity) {
  const glyphorium_text better = glyphorium_entity_better_name(entity);
  return better.size > 0 ? better : glyphorium_entity_table_name(entity);
}

glyphorium_optional_bool glyphorium_entity_is_sf_symbol(const glyphorium_entity* entity) {
  if (entity) return optionalBool(entityOf(entity).computed.isSFSymbol);
  setStatus(GLYPHORIUM_INVALID_ARGUMENT);
  return GLYPHORIUM_ABSENT;
}

bool glyphorium_entity_is_enriched(const glyphorium_entity* entity) {
  if (!entity) return InvalidArgument();
  return entityOf(entity).additional.has_value();
}

glyphorium_text glyphorium_entity_html_named(const glyphorium_entity* entity) {
  return borrowed(*enrichmentOf(entity, &glyph::AdditionalData::htmlNamed));
}

glyphorium_text glyphorium_entity_better_name(const glyphorium_entity* entity) {
  return borrowed(*enrichmentOf(entity, &glyph::AdditionalData::betterName));
}

glyphorium_text glyphorium_entity_image_name(const glyphorium_entity* entity) {
  return borrowed(*enrichmentOf(entity, &glyph::AdditionalData::imageName));
}

glyphorium_optional_bool glyphorium_entity_needs_serifs(const glyphorium_entity* entity) {
  return optionalBool(*enrichmentOf(entity, &glyph::AdditionalData::needsSerifs));
}

size_t glyphorium_entity_search_term_count(const glyphorium_entity* entity) {
  const auto* const terms = enrichmentOf(entity, &glyph::AdditionalData::searchTerms);
  return *terms ? (*terms)->size() : 0;
}

glyphorium_text glyphorium_entity_search_term(const glyphorium_entity* entity, size_t index) {
  const auto* const terms = enrichmentOf(entity, &glyph::AdditionalData::searchTerms);
  if (!*terms || index >= (*terms)->size()) return InvalidArgument();
  return borrowed((**terms)[index].view());
}

size_t glyphorium_entity_note_count(const glyphorium_entity* entity) {
  return enrichmentOf(entity, &glyph::AdditionalData::advice)->size();
}

glyphorium_text glyphorium_entity_note_language(const glyphorium_entity* entity, size_t index) {
  const auto* const note = noteAt(entity, index);
  return note ? borrowed(note->lang.view()) : glyphorium_text{nullptr, 0};
}

glyphorium_text glyphorium_entity_note(const glyphorium_entity* entity, size_t index) {
  const auto* const note = noteAt(entity, index);
  return note ? borrowed(note->text.view()) : glyphorium_text{nullptr, 0};
}

char* glyphorium_entity_localized_note(const glyphorium_entity* entity, size_t* size) {
  if (!entity) return InvalidArgument();
  return guarded([=] { return owned(entityOf(entity).usageNote(), size); });
}

char* glyphorium_entity_search_string(const glyphorium_entity* entity, size_t* size) {
  if (!entity) return InvalidArgument();
  return guarded([=] { return owned(entityOf(entity).searchString(), size); });
}

char* glyphorium_entity_form(const glyphorium_entity* entity, const char* form, size_t* size) {
  if (!entity || !form) return InvalidArgument();
  return guarded([=]() -> char* {
    const glyph::CopyForm* const found = glyph::copyForm(form);
    if (!found) return InvalidArgument();
    return owned(found->text(entityOf(entity)), size);
  });
}

size_t glyphorium_form_count(void) {
  return glyph::copyForms().size();
}

glyphorium_text glyphorium_form_identifier(size_t index) {
  if (index >= glyph::copyForms().size()) return InvalidArgument();
  return borrowed(glyph::copyForms()[index].identifier);
}

glyphorium_text glyphorium_form_separator(size_t index) {
  if (index >= glyph::copyForms().size()) return InvalidArgument();
  return borrowed(glyph::copyForms()[index].separator);
}

char* glyphorium_visible_symbol(const char* symbol, size_t symbol_size, size_t* size) {
  if (!symbol) return InvalidArgument();
  return guarded([=] { return owned(glyph::visibleSymbol(textOf(symbol, symbol_size)), size); });
}

bool glyphorium_runs_right_to_left(const char* symbol, size_t symbol_size) {
  if (!symbol) return InvalidArgument();
  return guarded([=] { return glyph::runsRightToLeft(textOf(symbol, symbol_size)); });
}
