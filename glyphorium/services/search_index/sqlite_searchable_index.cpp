// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/sqlite_searchable_index.h"

#include <pthread.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <iterator>
#include <list>
#include <new>
#include <thread>
#include <utility>

#include "glyphorium/services/search_index/index_repair.h"
#include "glyphorium/services/search_index/index_store.h"

namespace glyph {
namespace {

using Error = std::optional<std::string>;

struct Request {
  SearchableIndexRequest what;
  SearchableIndex::Completion completion;

  std::size_t items() const { return what.items.size() + what.identifiers.size(); }
};

void carryOut(const SearchableIndexRequest& request, IndexStore& store) {
  switch (request.kind) {
    case SearchableIndexRequest::Kind::indexItems:
      return store.add(request.items);
    case SearchableIndexRequest::Kind::deleteItems:
      return store.remove(request.identifiers);
    case SearchableIndexRequest::Kind::deleteAllItems:
      return store.clear();
  }
}

// Limits for the waiting requests that share a transaction. A batch is full when it has this many requests,
// or at least this many items. The limits are large enough to avoid most commits, and small enough that
// completions are called regularly.
constexpr std::size_t batchRequests = 256;
constexpr std::size_t batchItems = 20'000;

// Returns the error's message. If there is no memory for the message, returns a short text that needs no
// allocation.
std::string text(const std::exception& error) noexcept {
  try {
    return error.what();
  } catch (const std::bad_alloc&) {
    return "no memory";
  }
}

Error copied(const Error& error) noexcept {
  try {
    return error;
  } catch (const std::bad_alloc&) {
    return "no memory";
  }
}

void complete(const SearchableIndex::Completion& completion, Error error) noexcept {
  try {
    if (completion) completion(std::move(error));
  } catch (...) {  // the host's function has thrown, and there is no caller to inform
  }
}

// Blocks signals in the calling thread while the worker thread is started. The worker thread inherits the
// blocked signals, so the host's signal handlers run only on the host's own threads, as the host expects.
// Signals that are raised by a fault of the worker thread are not blocked.
class BlockSignals {
 public:
  BlockSignals() {
    sigset_t blocked;
    sigfillset(&blocked);
    for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP, SIGSYS}) {
      sigdelset(&blocked, fault);
    }
    pthread_sigmask(SIG_SETMASK, &blocked, &before_);
  }
  ~BlockSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
  BlockSignals(const BlockSignals&) = delete;
  BlockSignals& operator=(const BlockSignals&) = delete;

 private:
  sigset_t before_{};
};

}  // namespace

// The queue of requests and the thread that carries them out. The thread shares ownership of the Worker, so
// that a completion may destroy the index.
class SqliteSearchableIndex::Worker : public std::enable_shared_from_this<Worker> {
 public:
  explicit Worker(std::optional<std::filesystem::path> file) : file_(std::move(file)) {}

  void post(Request request) {
    try {
      const std::lock_guard lock(mutex_);
      if (!thread_.joinable()) start();
      queue_.push_back(std::move(request));
      pending_.requests += 1;
      pending_.items += queue_.back().items();
    } catch (const std::exception& error) {  // no thread or no memory; the request was not moved
      complete(request.completion, text(error));
      return;
    }
    arrived_.notify_one();
  }

  bool waitUntilIdle(std::chrono::milliseconds limit, const Progress& progress) {
    if (process_ != getpid()) return false;  // a forked child lacks the thread; its mutex may be locked
    constexpr std::chrono::milliseconds longest = std::chrono::hours(24 * 365);
    const auto deadline = std::chrono::steady_clock::now() + std::min(limit, longest);
    std::unique_lock lock(mutex_);
    for (std::optional<PendingIndexWork> reported;;) {
      if (progress && reported != pending_) {
        const auto left = pending_;
        reported = left;
        lock.unlock();
        progress(left);
        lock.lock();
      }
      if (pending_.requests == 0 && (!progress || reported == pending_)) return true;
      if (std::chrono::steady_clock::now() >= deadline) return false;
      if (!progress || reported == pending_) changed_.wait_until(lock, deadline);
    }
  }

  void end(std::chrono::milliseconds limit) {
    if (process_ != getpid()) {
      if (thread_.joinable()) thread_.detach();
      return;
    }
    const bool byCompletion = std::this_thread::get_id() == thread_.get_id();
    if (!byCompletion) waitUntilIdle(limit, {});
    {
      const std::lock_guard lock(mutex_);
      ending_ = true;
      if (!byCompletion) wait_.abandon();
    }
    arrived_.notify_one();
    if (!thread_.joinable()) return;
    if (byCompletion) {
      thread_.detach();
    } else {
      thread_.join();
    }
  }

 private:
  void start() {
    if (!file_) file_ = defaultIndexFile();
    process_ = getpid();
    const BlockSignals block;
    thread_ = std::thread([self = shared_from_this()] { self->run(); });
  }

  void run() {
    std::unique_lock lock(mutex_);
    for (;;) {
      arrived_.wait(lock, [this] { return ending_ || !queue_.empty(); });
      if (queue_.empty()) return;
      std::list<Request> batch;
      std::size_t items = 0;
      while (!queue_.empty() && batch.size() < batchRequests && items < batchItems) {
        items += queue_.front().items();
        batch.splice(batch.end(), queue_, queue_.begin());
      }
      lock.unlock();
      finish(batch);
      lock.lock();
    }
  }

  void finish(std::list<Request>& batch) {
    int code = SQLITE_OK;
    if (file_) wait_.renew(*file_);
    Error all = perform(batch.begin(), batch.end(), code);
    const bool forAll = code == SQLITE_BUSY || code == SQLITE_FULL;
    if (forAll) {
      // If a lock is not free in time or the disk is full, all waiting requests fail, not only this batch.
      // The next batch would only wait just as long again, or use up the last space on the disk.
      const std::lock_guard lock(mutex_);
      batch.splice(batch.end(), queue_);
    }
    // If a batch fails, its requests are carried out one by one, so that only the faulty requests fail.
    const bool oneByOne = all && batch.size() > 1 && !forAll;
    for (auto request = batch.begin(); request != batch.end(); ++request) {
      if (oneByOne) all = perform(request, std::next(request), code);
      complete(request->completion, copied(all));
      const auto items = request->items();
      *request = {};  // destroys the host's captures before the request counts as done
      const std::lock_guard lock(mutex_);
      pending_.requests -= 1;
      pending_.items -= items;
      changed_.notify_all();
    }
  }

  using Position = std::list<Request>::iterator;

  // Carries out the requests in one transaction. An error closes the file, which rolls back the transaction.
  // The next request opens the file again, because the cause of the error may be gone by then.
  Error perform(Position begin, Position end, int& code) noexcept {
    std::string reason;
    try {
      if (!file_) return "no home directory";
      if (performAndRepair(begin, end)) return std::nullopt;
      reason = "other programs keep replacing its file";
      code = SQLITE_BUSY;
    } catch (const SqliteError& error) {
      code = error.code();
      reason = text(error);
    } catch (const std::exception& error) {
      code = SQLITE_ERROR;
      reason = text(error);
    }
    store_.reset();
    return reason;
  }

  // Returns false if other processes renamed or deleted the file at every attempt.
  bool performAndRepair(Position begin, Position end) {
    bool repaired = false;
    for (int attempt = 0; attempt < 4; ++attempt) {
      try {
        if (performOnce(begin, end)) return true;
      } catch (const SqliteError& error) {
        store_.reset();
        const bool full = error.code() == SQLITE_FULL || error.code() == SQLITE_IOERR;
        const bool deletesAll = begin->what.kind == SearchableIndexRequest::Kind::deleteAllItems;
        if (full && deletesAll && std::next(begin) == end) {
          deleteIndex(*file_, wait_);
          return true;
        }
        if (std::exchange(repaired, true) || !mayBeDamage(error)) throw;
        repairIndex(*file_, wait_);
      }
    }
    return false;
  }

  // Returns false if another process renamed or deleted the file in the meantime. The changes are then lost.
  bool performOnce(Position begin, Position end) {
    if (store_ && !store_->inPlace()) store_.reset();
    if (!store_) store_.emplace(*file_, wait_);
    std::size_t items = 0;
    for (auto request = begin; request != end; ++request) items += request->items();
    store_->begin(items);
    if (!store_->inPlace()) return false;
    for (auto request = begin; request != end; ++request) carryOut(request->what, *store_);
    store_->commit();
    return store_->inPlace();
  }

  std::mutex mutex_;
  std::condition_variable arrived_;  // a request has arrived, or the index is being destroyed
  std::condition_variable changed_;  // pending_ has changed
  std::list<Request> queue_;
  PendingIndexWork pending_;
  bool ending_ = false;
  LockWait wait_;
  std::optional<std::filesystem::path> file_;
  std::atomic<pid_t> process_ = getpid();
  std::thread thread_;
  std::optional<IndexStore> store_;  // used only by the worker thread
};

SqliteSearchableIndex::SqliteSearchableIndex(std::optional<std::filesystem::path> file)
    : worker_(std::make_shared<Worker>(std::move(file))) {}

SqliteSearchableIndex::~SqliteSearchableIndex() {
  worker_->end(std::chrono::seconds(5));
}

void SqliteSearchableIndex::indexItems(std::vector<SearchableItem> items, Completion completion) {
  worker_->post({{SearchableIndexRequest::Kind::indexItems, std::move(items), {}}, std::move(completion)});
}

void SqliteSearchableIndex::deleteItems(std::vector<std::string> identifiers, Completion completion) {
  worker_->post(
      {{SearchableIndexRequest::Kind::deleteItems, {}, std::move(identifiers)}, std::move(completion)});
}

void SqliteSearchableIndex::deleteAllItems(Completion completion) {
  worker_->post({{SearchableIndexRequest::Kind::deleteAllItems, {}, {}}, std::move(completion)});
}

bool SqliteSearchableIndex::waitUntilIdle(std::chrono::milliseconds limit, const Progress& progress) {
  return worker_->waitUntilIdle(limit, progress);
}

}  // namespace glyph
