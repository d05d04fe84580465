// SPDX-License-Identifier: MIT
#include "glyphorium/c/services.h"

#include <algorithm>
#include <chrono>
#include <climits>
#include <mutex>

#include "glyphorium/c/handles.h"
#include "glyphorium/services/application/application.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/notifications/notification_center.h"
#include "glyphorium/services/pasteboard/pasteboard.h"
#include "glyphorium/services/pasteboard/terminal_pasteboard.h"
#include "glyphorium/services/search_index/searchable_index.h"
#include "glyphorium/services/search_index/searchable_index_reader.h"
#include "glyphorium/services/settings/memory_settings_store.h"
#include "glyphorium/services/settings/setting_json.h"
#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "glyphorium/services/sqlite/lock_wait.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

using namespace glyph::c;

struct glyphorium_reply {
  std::optional<std::string> text;
};

struct glyphorium_items {
  std::vector<glyph::SearchableItem> list;
};

struct glyphorium_observation {
  glyph::NotificationToken token;
};

struct glyphorium_request {
  glyph::SearchableIndex::Completion completion;
};

namespace {

using User = std::shared_ptr<void>;

class HostPasteboard final : public glyph::Pasteboard {
 public:
  HostPasteboard(const glyphorium_pasteboard& functions, User user)
      : functions_(functions), user_(std::move(user)) {}

  bool setPlainText(std::string_view text) override {
    return functions_.set_text(user_.get(), std::string(text).c_str(), text.size());
  }

 private:
  const glyphorium_pasteboard functions_;
  const User user_;
};

class HostSettingsStore final : public glyph::SettingsStore {
 public:
  HostSettingsStore(const glyphorium_settings_store& functions, User user)
      : functions_(functions), user_(std::move(user)) {}

  std::optional<glyph::SettingValue> object(std::string_view key) override {
    const auto json = reply(functions_.read, key);
    return json ? std::optional(glyph::settingFromJson(*json)) : std::nullopt;
  }

  void set(std::string_view key, glyph::SettingValue value) override {
    const auto json = glyph::settingToJson(value);
    if (json) functions_.write(user_.get(), std::string(key).c_str(), json->c_str(), json->size());
  }

  bool synchronize() override { return !functions_.synchronize || functions_.synchronize(user_.get()); }

  void update(std::string_view key, const Change& change) override {
    const std::lock_guard lock(*this);
    SettingsStore::update(key, change);
  }

  std::optional<std::string> readFailure(std::string_view key) override {
    return functions_.read_failure ? reply(functions_.read_failure, key) : std::nullopt;
  }

  // These two functions let std::lock_guard use the host's lock.
  void lock() {
    if (functions_.lock) functions_.lock(user_.get());
  }
  void unlock() {
    if (functions_.unlock) functions_.unlock(user_.get());
  }

 private:
  std::optional<std::string> reply(void (*function)(void*, const char*, glyphorium_reply*),
                                   std::string_view key) {
    glyphorium_reply reply;
    function(user_.get(), std::string(key).c_str(), &reply);
    return std::move(reply.text);
  }

  const glyphorium_settings_store functions_;
  const User user_;
};

class HostIndex final : public glyph::SearchableIndex {
 public:
  HostIndex(const glyphorium_index& functions, User user) : functions_(functions), user_(std::move(user)) {}

  void indexItems(std::vector<glyph::SearchableItem> items, Completion completion) override {
    const glyphorium_items handle{std::move(items)};
    functions_.add(user_.get(), &handle, new glyphorium_request{std::move(completion)});
  }

  void deleteItems(std::vector<std::string> identifiers, Completion completion) override {
    std::vector<const char*> texts;
    texts.reserve(identifiers.size());
    for (const std::string& identifier : identifiers) texts.push_back(identifier.c_str());
    functions_.remove(user_.get(), texts.data(), texts.size(), new glyphorium_request{std::move(completion)});
  }

  void deleteAllItems(Completion completion) override {
    functions_.remove_all(user_.get(), new glyphorium_request{std::move(completion)});
  }

  bool waitUntilIdle(std::chrono::milliseconds limit, const Progress&) override {
    return !functions_.wait || functions_.wait(user_.get(), limit.count());
  }

 private:
  const glyphorium_index functions_;
  const User user_;
};

// Returns a completion that calls the host's function with its `user`.
glyph::SearchableIndex::Completion completionOf(glyphorium_done done, void* user) {
  if (!done) return {};
  return [=](const std::optional<std::string>& error) { done(user, borrowed(error)); };
}

// Returns the text of a member of an item.
template <class Member>
glyphorium_text memberOf(const glyphorium_items* items, size_t index, Member member) {
  if (!items || index >= items->list.size()) return InvalidArgument();
  return borrowed(items->list[index].*member);
}

glyph::SearchableIndexReader readerOf(const char* file) {
  return file ? glyph::SearchableIndexReader(file) : glyph::SearchableIndexReader();
}

}  // namespace

char* glyphorium_application_identifier(void) {
  return guarded([] { return owned(glyph::applicationIdentifier()); });
}

bool glyphorium_set_application_identifier(const char* identifier) {
  if (!identifier) return InvalidArgument();
  return guarded([=]() -> bool {
    glyph::setApplicationIdentifier(identifier);
    if (glyph::applicationIdentifier() == identifier) return true;
    return InvalidArgument();
  });
}

bool glyphorium_set_diagnostics(glyphorium_diagnostics sink, void* user, glyphorium_destroy destroy) {
  return guarded([=] {
    const User owner = userOf(user, destroy);
    glyph::DiagnosticsSink function;
    if (sink) {
      function = [sink, owner](std::string_view line) {
        sink(owner.get(), std::string(line).c_str(), line.size());
      };
    }
    glyph::setDiagnosticsSink(std::move(function));
    return true;
  });
}

glyphorium_observation* glyphorium_observe(const char* name, glyphorium_observer observer, void* user,
                                           glyphorium_destroy destroy) {
  return guarded([=]() -> glyphorium_observation* {
    const User owner = userOf(user, destroy);
    if (!name || !observer) return InvalidArgument();
    auto observation = std::make_unique<glyphorium_observation>();
    observation->token = glyph::NotificationCenter::defaultCenter().addObserver(
        name, [observer, owner](const glyph::Notification& notification) {
          observer(owner.get(), notification.name.rawValue().c_str(), borrowed(notification.object));
        });
    return observation.release();
  });
}

void glyphorium_observation_free(glyphorium_observation* observation) {
  delete observation;
}

bool glyphorium_post(const char* name, const char* object) {
  if (!name) return InvalidArgument();
  return guarded([=] {
    glyph::Notification notification{name};
    if (object) notification.object = object;
    glyph::NotificationCenter::defaultCenter().post(notification);
    return true;
  });
}

bool glyphorium_copy(const char* text, size_t size, const char* displayed) {
  if (!text) return InvalidArgument();
  return guarded([=] {
    return succeeded(glyph::toolKit().writeToPasteboard(
        textOf(text, size), displayed ? std::optional<std::string>(displayed) : std::nullopt));
  });
}

bool glyphorium_set_pasteboard(const glyphorium_pasteboard* pasteboard, void* user,
                               glyphorium_destroy destroy) {
  return guarded([=]() -> bool {
    const User owner = userOf(user, destroy);
    if (pasteboard) {
      const auto functions = structureOf(pasteboard, sizeof(glyphorium_pasteboard));
      if (!functions || !functions->set_text) return InvalidArgument();
      glyph::setPasteboard(std::make_shared<HostPasteboard>(*functions, owner));
    } else {
      glyph::setPasteboard(nullptr);
    }
    return true;
  });
}

bool glyphorium_use_terminal_pasteboard(void) {
  return guarded([] {
    glyph::setPasteboard(std::make_shared<glyph::TerminalPasteboard>());
    return true;
  });
}

void glyphorium_reply_text(glyphorium_reply* reply, const char* text, size_t size) {
  if (!reply || !text) return setStatus(GLYPHORIUM_INVALID_ARGUMENT);
  guarded([=] { reply->text = textOf(text, size); });
}

bool glyphorium_set_settings_store(const glyphorium_settings_store* store, void* user,
                                   glyphorium_destroy destroy) {
  return guarded([=]() -> bool {
    const User owner = userOf(user, destroy);
    if (store) {
      const auto functions = structureOf(store, sizeof(glyphorium_settings_store));
      if (!functions || !functions->read || !functions->write || !functions->lock != !functions->unlock) {
        return InvalidArgument();
      }
      glyph::setSettingsStore(std::make_shared<HostSettingsStore>(*functions, owner));
    } else {
      glyph::setSettingsStore(nullptr);
    }
    return true;
  });
}

bool glyphorium_use_settings_file(const char* path) {
  if (!path || !*path) return InvalidArgument();
  return guarded([=] {
    glyph::setSettingsStore(std::make_shared<glyph::SqliteSettingsStore>(path));
    return true;
  });
}

bool glyphorium_use_memory_settings(void) {
  return guarded([] {
    glyph::setSettingsStore(std::make_shared<glyph::MemorySettingsStore>());
    return true;
  });
}

char* glyphorium_setting(const char* key, size_t* size) {
  if (!key) return InvalidArgument();
  return guarded([=]() -> char* {
    const auto value = glyph::settingsStore()->object(key);
    return value ? owned(glyph::settingToJson(*value), size) : nullptr;
  });
}

bool glyphorium_set_setting(const char* key, const char* json) {
  if (!key || !json) return InvalidArgument();
  return guarded([=]() -> bool {
    glyph::SettingValue value = glyph::settingFromJson(json);
    if (!glyph::settingToJson(value)) return InvalidArgument();
    glyph::settingsStore()->set(key, std::move(value));
    return succeeded(glyph::settingsStore()->synchronize());
  });
}

bool glyphorium_synchronize_settings(void) {
  return guarded([] { return succeeded(glyph::settingsStore()->synchronize()); });
}

char* glyphorium_setting_failure(const char* key) {
  if (!key) return InvalidArgument();
  return guarded([=] { return owned(glyph::settingsStore()->readFailure(key)); });
}

bool glyphorium_set_lock_wait(glyphorium_lock_wait policy, void* user, glyphorium_destroy destroy) {
  return guarded([=] {
    const User owner = userOf(user, destroy);
    glyph::LockWaitPolicy function;
    if (policy) {
      function = [policy, owner](std::chrono::milliseconds waited) {
        return policy(owner.get(), waited.count());
      };
    }
    glyph::setLockWaitPolicy(std::move(function));
    return true;
  });
}

size_t glyphorium_items_count(const glyphorium_items* items) {
  if (!items) return InvalidArgument();
  return items->list.size();
}

glyphorium_text glyphorium_items_identifier(const glyphorium_items* items, size_t index) {
  return memberOf(items, index, &glyph::SearchableItem::uniqueIdentifier);
}

glyphorium_text glyphorium_items_domain(const glyphorium_items* items, size_t index) {
  return memberOf(items, index, &glyph::SearchableItem::domainIdentifier);
}

glyphorium_text glyphorium_items_content_type(const glyphorium_items* items, size_t index) {
  return memberOf(items, index, &glyph::SearchableItem::contentType);
}

glyphorium_text glyphorium_items_title(const glyphorium_items* items, size_t index) {
  return memberOf(items, index, &glyph::SearchableItem::title);
}

glyphorium_text glyphorium_items_symbol(const glyphorium_items* items, size_t index) {
  return memberOf(items, index, &glyph::SearchableItem::symbol);
}

glyphorium_text glyphorium_items_comment(const glyphorium_items* items, size_t index) {
  return memberOf(items, index, &glyph::SearchableItem::comment);
}

glyphorium_text glyphorium_items_genre(const glyphorium_items* items, size_t index) {
  return memberOf(items, index, &glyph::SearchableItem::genre);
}

size_t glyphorium_items_keyword_count(const glyphorium_items* items, size_t index) {
  if (!items || index >= items->list.size()) return InvalidArgument();
  return items->list[index].keywords.size();
}

glyphorium_text glyphorium_items_keyword(const glyphorium_items* items, size_t index, size_t keyword) {
  if (!items || index >= items->list.size() || keyword >= items->list[index].keywords.size()) {
    return InvalidArgument();
  }
  return borrowed(items->list[index].keywords[keyword]);
}

void glyphorium_items_free(glyphorium_items* items) {
  delete items;
}

bool glyphorium_index_add(const glyphorium_entities* entities, glyphorium_done done, void* user) {
  if (!entities) return InvalidArgument();
  return guarded([=] {
    glyph::toolKit().addToSpotlight(entities->list, completionOf(done, user));
    return true;
  });
}

bool glyphorium_index_remove(const glyphorium_entities* entities, glyphorium_done done, void* user) {
  if (!entities) return InvalidArgument();
  return guarded([=] {
    std::vector<std::string> identifiers;
    for (const glyph::Entity& entity : entities->list) identifiers.push_back(entity.computed.hex);
    glyph::searchableIndex()->deleteItems(std::move(identifiers), completionOf(done, user));
    return true;
  });
}

bool glyphorium_index_reset(glyphorium_done done, void* user) {
  return guarded([=] {
    glyph::searchableIndex()->deleteAllItems(completionOf(done, user));
    return true;
  });
}

bool glyphorium_index_wait(int64_t milliseconds) {
  // The limit prevents an overflow of the deadline.
  constexpr std::int64_t longest = INT_MAX;
  return guarded([=] {
    const std::chrono::milliseconds limit(std::clamp<std::int64_t>(milliseconds, 0, longest));
    return succeeded(glyph::searchableIndex()->waitUntilIdle(limit));
  });
}

glyphorium_items* glyphorium_index_search(const char* file, const char* query, size_t limit) {
  if (!query) return InvalidArgument();
  return guarded([=]() -> glyphorium_items* {
    auto reader = readerOf(file);
    auto items = reader.search(query, static_cast<int>(std::min<size_t>(limit, INT_MAX)));
    if (!succeeded(reader.error().empty())) return nullptr;
    return new glyphorium_items{std::move(items)};
  });
}

int64_t glyphorium_index_count(const char* file) {
  setStatus(GLYPHORIUM_OK);
  try {
    auto reader = readerOf(file);
    const auto count = static_cast<int64_t>(reader.count());
    return succeeded(reader.error().empty()) ? count : -1;
  } catch (const std::bad_alloc&) {
    setStatus(GLYPHORIUM_OUT_OF_MEMORY);
    return -1;
  }
}

void glyphorium_request_done(glyphorium_request* request, const char* error) {
  if (!request) return setStatus(GLYPHORIUM_INVALID_ARGUMENT);
  guarded([=] {
    const std::unique_ptr<glyphorium_request> owner(request);
    if (owner->completion) owner->completion(error ? std::optional<std::string>(error) : std::nullopt);
  });
}

bool glyphorium_set_index(const glyphorium_index* index, void* user, glyphorium_destroy destroy) {
  return guarded([=]() -> bool {
    const User owner = userOf(user, destroy);
    if (index) {
      const auto functions = structureOf(index, sizeof(glyphorium_index));
      if (!functions || !functions->add || !functions->remove || !functions->remove_all)
        return InvalidArgument();
      glyph::setSearchableIndex(std::make_shared<HostIndex>(*functions, owner));
    } else {
      glyph::setSearchableIndex(nullptr);
    }
    return true;
  });
}

bool glyphorium_use_memory_index(void) {
  return guarded([] {
    glyph::setSearchableIndex(std::make_shared<glyph::MemorySearchableIndex>());
    return true;
  });
}
