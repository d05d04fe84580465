/* SPDX-License-Identifier: MIT */
/* A window that searches the catalog while the user types. A click or Enter copies the character. */
#include <glyphorium/c/glyphorium.h>
#include <gtk/gtk.h>

static glyphorium_search *search;

static void fill(GtkEditable *field, gpointer user) {
  GtkListBox *list = GTK_LIST_BOX(user);
  for (GtkListBoxRow *row; (row = gtk_list_box_get_row_at_index(list, 0));) gtk_list_box_remove(list, GTK_WIDGET(row));

  glyphorium_results *found = glyphorium_search_query(search, gtk_editable_get_text(field), NULL);
  for (size_t i = 0; i < glyphorium_results_count(found); ++i) {
    const glyphorium_entity *entity = glyphorium_results_entity(found, i);
    const glyphorium_text symbol = glyphorium_entity_symbol(entity);
    char *visible = glyphorium_visible_symbol(symbol.data, symbol.size, NULL);
    char *text = g_strdup_printf("%s  %s", visible, glyphorium_entity_name(entity).data);
    GtkWidget *label = gtk_label_new(text);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    g_object_set_data_full(G_OBJECT(label), "symbol", g_strndup(symbol.data, symbol.size), g_free);
    gtk_list_box_append(list, label);
    g_free(text);
    glyphorium_free(visible);
  }
  glyphorium_results_free(found);
}

static void copy(GtkListBox *list, GtkListBoxRow *row, gpointer user) {
  (void)list;
  (void)user;
  const char *symbol = g_object_get_data(G_OBJECT(gtk_list_box_row_get_child(row)), "symbol");
  glyphorium_copy(symbol, GLYPHORIUM_TERMINATED, NULL);
}

/* Copies a text for the library. activate() makes this function a part of the pasteboard. */
static bool setText(void *user, const char *text, size_t size) {
  (void)size;
  gdk_clipboard_set_text(gtk_widget_get_clipboard(GTK_WIDGET(user)), text);
  return true;
}

static void activate(GtkApplication *application, gpointer user) {
  (void)user;
  GtkWidget *window = gtk_application_window_new(application);
  GtkWidget *box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 6);
  GtkWidget *field = gtk_search_entry_new();
  GtkWidget *scrolled = gtk_scrolled_window_new();
  GtkWidget *list = gtk_list_box_new();
  gtk_widget_set_vexpand(scrolled, TRUE);
  gtk_scrolled_window_set_child(GTK_SCROLLED_WINDOW(scrolled), list);
  gtk_box_append(GTK_BOX(box), field);
  gtk_box_append(GTK_BOX(box), scrolled);
  gtk_window_set_child(GTK_WINDOW(window), box);
  gtk_window_set_default_size(GTK_WINDOW(window), 420, 560);

  const glyphorium_pasteboard clipboard = {sizeof clipboard, setText};
  glyphorium_set_pasteboard(&clipboard, window, NULL);
  g_signal_connect(field, "changed", G_CALLBACK(fill), list);
  g_signal_connect(list, "row-activated", G_CALLBACK(copy), NULL);
  gtk_editable_set_text(GTK_EDITABLE(field), "arrow");
  gtk_window_present(GTK_WINDOW(window));
}

int main(int argc, char **argv) {
  glyphorium_set_application_identifier("org.example.GtkHost");
  search = glyphorium_search_all();
  GtkApplication *application = gtk_application_new("org.example.GtkHost", G_APPLICATION_NON_UNIQUE);
  g_signal_connect(application, "activate", G_CALLBACK(activate), NULL);
  const int status = g_application_run(G_APPLICATION(application), argc, argv);
  g_object_unref(application);
  glyphorium_search_free(search);
  return status;
}
