/* SPDX-License-Identifier: MIT */
/* Finds characters by words:  c_console arrow left */
#include <glyphorium/c/glyphorium.h>
#include <stdio.h>
#include <string.h>

int main(int argc, char **argv) {
  char words[200] = "";
  for (int i = 1; i < argc; ++i) {
    strncat(words, argv[i], sizeof words - strlen(words) - 1);
    strncat(words, " ", sizeof words - strlen(words) - 1);
  }

  glyphorium_search *search = glyphorium_search_all(); /* the catalog and the user's characters */
  glyphorium_search_options options = GLYPHORIUM_SEARCH_OPTIONS;
  options.limit = 5;
  glyphorium_results *found = glyphorium_search_query(search, words, &options);
  const size_t count = glyphorium_results_count(found);
  for (size_t i = 0; i < count; ++i) {
    const glyphorium_entity *entity = glyphorium_results_entity(found, i);
    const glyphorium_text symbol = glyphorium_entity_symbol(entity);
    char *visible = glyphorium_visible_symbol(symbol.data, symbol.size, NULL);
    char *code = glyphorium_entity_form(entity, "code-point", NULL);
    printf("%s  %s  %s\n", visible, code, glyphorium_entity_name(entity).data);
    glyphorium_free(code);
    glyphorium_free(visible);
  }
  if (count == 0) fputs("nothing found\n", stderr);
  glyphorium_results_free(found);
  glyphorium_search_free(search);
  return count == 0 ? 1 : 0;
}
