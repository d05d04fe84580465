/* SPDX-License-Identifier: MIT */
#include <glyphorium/c/glyphorium.h>
#include <stdio.h>

static void ignore(void *user, const char *line, size_t size) {
  (void)user, (void)line, (void)size;
}

int main(void) {
  glyphorium_set_diagnostics(ignore, NULL, NULL);
  glyphorium_use_memory_settings();

  glyphorium_search *search = glyphorium_search_all();
  glyphorium_search_options options = GLYPHORIUM_SEARCH_OPTIONS;
  options.limit = 1;
  glyphorium_results *results = glyphorium_search_query(search, "arrow right", &options);
  const glyphorium_entity *arrow = glyphorium_results_entity(results, 0);
  char *code = glyphorium_entity_form(arrow, "code-point", NULL);
  printf("%s %s\n", code, glyphorium_entity_name(arrow).data);
  glyphorium_free(code);
  glyphorium_results_free(results);
  glyphorium_search_free(search);

  if (!glyphorium_configure()) return 1;
  glyphorium_entities *all = glyphorium_all_entities();
  printf("%zu characters\n", glyphorium_entities_count(all));
  glyphorium_entities_free(all);
  return 0;
}
