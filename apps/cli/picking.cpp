// SPDX-License-Identifier: MIT
// The finder: a search field in the terminal, with a list of results that is updated while the user types.
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <sstream>

#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/display.h"
#include "glyphorium/search/catalog_search.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/copy_forms.h"
#include "lookup.h"

namespace cli {
namespace {

using glyph::Entity;

volatile std::sig_atomic_t resized = 0;

// The user's terminal, even if standard input and output are redirected. The constructor makes the terminal
// deliver each key at once, and shows the alternate screen. The destructor restores the mode and the screen
// of the terminal.
class Terminal {
 public:
  Terminal() : file_(open("/dev/tty", O_RDWR | O_CLOEXEC)) {
    if (file_ < 0 || tcgetattr(file_, &before_) != 0) return;
    termios keys = before_;
    keys.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO | ISIG | IEXTEN);
    keys.c_iflag &= ~static_cast<tcflag_t>(IXON | ICRNL);
    keys.c_cc[VMIN] = 1;
    keys.c_cc[VTIME] = 0;
    isOpen_ = tcsetattr(file_, TCSAFLUSH, &keys) == 0;
    if (!isOpen_) return;
    struct sigaction onResize {};
    onResize.sa_handler = [](int) { resized = 1; };  // without SA_RESTART, so that poll() returns
    sigaction(SIGWINCH, &onResize, nullptr);
    write("\x1b[?1049h\x1b[?2004h");
  }
  ~Terminal() {
    if (isOpen_) {
      write("\x1b[?2004l\x1b[?1049l");
      tcsetattr(file_, TCSAFLUSH, &before_);
    }
    if (file_ >= 0) close(file_);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  bool isOpen() const { return isOpen_; }

  void write(std::string_view text) const {
    while (!text.empty()) {
      const ssize_t count = ::write(file_, text.data(), text.size());
      if (count < 0 && errno != EINTR) return;
      if (count > 0) text.remove_prefix(static_cast<std::size_t>(count));
    }
  }

  // Waits for the next bytes from the keyboard. `bytes` is empty if the wait timed out or the size of the
  // terminal changed. Returns false if the terminal is gone.
  bool read(std::string& bytes, int milliseconds = -1) const {
    bytes.clear();
    pollfd ready{file_, POLLIN, 0};
    if (poll(&ready, 1, milliseconds) < 0) return errno == EINTR;
    if (ready.revents == 0) return true;
    char buffer[256];
    const ssize_t count = ::read(file_, buffer, sizeof buffer);
    if (count <= 0) return count < 0 && errno == EINTR;
    bytes.assign(buffer, static_cast<std::size_t>(count));
    return true;
  }

  winsize size() const {
    winsize size{};
    if (ioctl(file_, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0) return {24, 80, 0, 0};
    return size;
  }

 private:
  const int file_;
  termios before_{};
  bool isOpen_ = false;
};

// Returns the text, truncated to this number of columns. Escape sequences for colours have no width and are
// kept.
std::string cut(std::string_view text, int columns) {
  std::string result;
  for (int used = 0; !text.empty();) {
    if (text.starts_with("\x1b[")) {
      const std::size_t end = std::min(text.find('m') + 1, text.size());
      result += text.substr(0, end);
      text.remove_prefix(end);
      continue;
    }
    const std::string_view rest = text.substr(0, text.find('\x1b'));
    for (const std::string_view cluster : glyph::graphemeClusters(rest)) {
      used += glyph::displayWidth(cluster);
      if (used <= columns) result += cluster;
    }
    text.remove_prefix(rest.size());
  }
  return result;
}

class Finder {
 public:
  Finder(const Terminal& terminal, const PickRequest& request)
      : terminal_(terminal), request_(request), query_(joined(request.words, " ")) {
    search();
  }

  // Returns true if the user chose characters.
  bool run() {
    std::string bytes;
    for (draw(); terminal_.read(bytes); draw()) {
      pending_ += bytes;
      resized = 0;
      while (!pending_.empty() && !isDone_) {
        // If no further bytes follow an escape character soon, the user has pressed the Escape key. Other
        // keys whose sequences begin with an escape character send all bytes at once.
        if (pending_ == "\x1b") {
          if (!terminal_.read(bytes, 30)) return false;
          if (bytes.empty()) return false;
          pending_ += bytes;
        }
        handleKey();
      }
      if (isDone_) return accepted_;
    }
    return false;
  }

  // Returns the characters that the user has marked, in the order of marking. If there are no marked
  // characters, returns the character under the cursor.
  std::vector<Entity> chosen() const {
    if (!marked_.empty()) return marked_;
    return cursor_ < found_.size() ? std::vector{search_.entity(found_[cursor_])} : std::vector<Entity>();
  }

 private:
  bool takeKey(std::string_view key) {
    if (!pending_.starts_with(key)) return false;
    pending_.erase(0, key.size());
    return true;
  }

  void handleKey() {
    constexpr std::string_view pasteBegin = "\x1b[200~", pasteEnd = "\x1b[201~";
    if (takeKey(pasteBegin) || takeKey(pasteEnd)) return;
    if (takeKey("\x1b[A") || takeKey("\x1bOA") || takeKey("\x10")) return move(-1);  // up, Ctrl+P
    if (takeKey("\x1b[B") || takeKey("\x1bOB") || takeKey("\x0e")) return move(1);   // down, Ctrl+N
    if (takeKey("\x1b[5~")) return move(-page_);
    if (takeKey("\x1b[6~")) return move(page_);
    if (takeKey("\x1b[H") || takeKey("\x1b[1~")) return move(-static_cast<int>(found_.size()));
    if (takeKey("\x1b[F") || takeKey("\x1b[4~")) return move(static_cast<int>(found_.size()));
    if (takeKey("\r") || takeKey("\n")) {
      accepted_ = !chosen().empty();
      isDone_ = accepted_;
      return;
    }
    if (takeKey("\x03") || takeKey("\x07") ||
        (query_.empty() && takeKey("\x04"))) {  // Ctrl+C, Ctrl+G, Ctrl+D
      isDone_ = true;
      return;
    }
    if (takeKey("\t")) return request_.multi ? mark() : move(1);
    if (takeKey("\x7f") || takeKey("\b")) return change(withoutLast(query_));
    if (takeKey("\x15")) return change("");  // Ctrl+U
    if (takeKey("\x17")) {                   // Ctrl+W
      std::string shorter = query_;
      while (shorter.ends_with(' ')) shorter.pop_back();
      const std::size_t blank = shorter.rfind(' ');
      return change(blank == std::string::npos ? "" : shorter.substr(0, blank + 1));
    }
    if (pending_.front() == '\x1b') {
      skipUnknownKey();
    } else if (static_cast<unsigned char>(pending_.front()) < 0x20) {
      pending_.erase(0, 1);
    } else {
      type();
    }
  }

  // Removes the escape sequence of a key that has no function in the finder.
  void skipUnknownKey() {
    std::size_t size = 2;
    if (pending_.size() > 1 && (pending_[1] == '[' || pending_[1] == 'O')) {
      size = 2;
      while (size < pending_.size() && (pending_[size] < 0x40 || pending_[size] > 0x7E)) ++size;
      ++size;
    }
    pending_.erase(0, size);
  }

  void type() {
    const auto isKey = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    const auto end =
        static_cast<std::size_t>(std::find_if(pending_.begin(), pending_.end(), isKey) - pending_.begin());
    std::string text = pending_.substr(0, end);
    // Leave the bytes of an incomplete last character for the next read.
    std::size_t whole = text.size();
    for (std::size_t cutOff = 0; cutOff < 4 && !glyph::isWellFormedUtf8(text.substr(0, whole)) && whole > 0;
         ++cutOff)
      --whole;
    if (whole == 0 && text.size() < 4) {
      std::string more;
      if (terminal_.read(more, 30) && !more.empty()) {
        pending_ += more;
        return;
      }
    }
    pending_.erase(0, whole == 0 ? end : whole);
    text.resize(whole);
    change(query_ + text);
  }

  static std::string withoutLast(const std::string& text) {
    const auto clusters = glyph::graphemeClusters(text);
    return clusters.empty() ? text : text.substr(0, text.size() - clusters.back().size());
  }

  void change(std::string query) {
    if (query == query_) return;
    query_ = std::move(query);
    search();
  }

  void search() {
    constexpr std::size_t most = 500;
    cursor_ = top_ = 0;
    const glyph::SearchResults results = search_.query(query_, {most, std::nullopt, {}});
    found_ = results.results;
    total_ = results.total;
    approximate_ = results.approximate;
  }

  void move(int by) {
    if (found_.empty()) return;
    const int last = static_cast<int>(found_.size()) - 1;
    cursor_ = static_cast<std::size_t>(std::clamp(static_cast<int>(cursor_) + by, 0, last));
  }

  void mark() {
    if (found_.empty()) return;
    const Entity entity = search_.entity(found_[cursor_]);
    const auto known = std::find(marked_.begin(), marked_.end(), entity);
    if (known == marked_.end())
      marked_.push_back(entity);
    else
      marked_.erase(known);
    move(1);
  }

  std::vector<std::string> preview(int columns, int rows) const {
    std::vector<std::string> lines;
    if (cursor_ >= found_.size() || rows <= 0) return lines;
    Output card(Style::terminal);
    card.setWidth(columns);
    printCard(card, {search_.entity(found_[cursor_])});
    std::istringstream text(card.take());
    for (std::string line; static_cast<int>(lines.size()) < rows && std::getline(text, line);)
      lines.push_back(cut(line, columns));
    return lines;
  }

  void draw() {
    const winsize size = terminal_.size();
    const int columns = size.ws_col;
    const int rows = size.ws_row;
    // The card is below the list and has the same height.
    const int cardRows = rows >= 12 ? (rows - 3) / 2 : 0;
    page_ = std::max(rows - 2 - (cardRows > 0 ? cardRows + 1 : 0), 1);
    const auto page = static_cast<std::size_t>(page_);
    top_ = std::clamp(top_, cursor_ >= page ? cursor_ - page + 1 : 0, cursor_);

    Output lines(Style::terminal);
    std::string screen = "\x1b[?25l\x1b[H";
    const auto add = [&](std::string_view line) { screen += cut(line, columns) + "\x1b[0m\x1b[K\r\n"; };
    const std::string prompt = "> " + query_;
    add(prompt);
    std::string state = std::to_string(found_.empty() ? 0 : cursor_ + 1) + "/" + std::to_string(total_);
    if (query_.empty())
      state = "type a name, a meaning, a code or a character";
    else if (found_.empty())
      state = "nothing found";
    else if (approximate_)
      state += "  similar";
    if (!marked_.empty()) {
      state += "  marked: ";
      for (const Entity& entity : marked_) state += visibleSymbol(entity.computed.symbol);
    }
    lines.print(lines.faint(state));
    add(lines.take());
    for (std::size_t i = top_; i < std::min(found_.size(), top_ + page); ++i) {
      const Entity entity = search_.entity(found_[i]);
      const bool isMarked = std::find(marked_.begin(), marked_.end(), entity) != marked_.end();
      const std::string symbol = visibleSymbol(entity.computed.symbol);
      const int width = glyph::displayWidth(symbol);
      lines.print((i == cursor_ ? "\u203A" : " ") + std::string(isMarked ? "*" : " ") + lines.accent(symbol) +
                  std::string(static_cast<std::size_t>(std::max(4 - width, 1)), ' ') +
                  (i == cursor_ ? lines.strong(entity.name()) : entity.name()) + "  " +
                  lines.faint(entity.computed.hex));
      add(lines.take());
    }
    const int listed = static_cast<int>(std::min(found_.size() - std::min(top_, found_.size()), page));
    if (cardRows > 0) {
      for (int i = listed; i < page_; ++i) add("");
      lines.print(lines.faint(repeated("\u2500", columns)));
      add(lines.take());
      for (const std::string& line : preview(columns, cardRows - 1)) add(line);
    }
    screen +=
        "\x1b[J\x1b[1;" + std::to_string(std::min(glyph::displayWidth(prompt) + 1, columns)) + "H\x1b[?25h";
    terminal_.write(screen);
  }

  static std::string repeated(std::string_view text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i) result += text;
    return result;
  }

  const Terminal& terminal_;
  const PickRequest& request_;
  const glyph::CatalogSearch search_;
  std::string query_;
  std::vector<glyph::SearchResult> found_;
  std::size_t total_ = 0;
  bool approximate_ = false;
  std::size_t cursor_ = 0;
  std::size_t top_ = 0;  // the first result that is shown
  int page_ = 1;         // the number of results that are shown
  std::vector<Entity> marked_;
  std::string pending_;  // bytes of the keyboard that are not handled yet
  bool isDone_ = false;
  bool accepted_ = false;
};

}  // namespace

int pickCharacters(Output& output, const PickRequest& request) {
  const glyph::CopyForm* const form = glyph::copyForm(request.form);
  if (!form) return wrongUse;  // cannot happen: the parser accepts only known forms
  std::vector<Entity> chosen;
  {
    const Terminal terminal;
    if (!terminal.isOpen()) {
      complain("pick needs a terminal; 'glyphorium search' works without");
      return wrongUse;
    }
    Finder finder(terminal, request);
    if (!finder.run()) return nothingFound;
    chosen = finder.chosen();
  }
  if (request.copy) return copyEntities(output, chosen, request.form);
  std::vector<std::string> texts;
  for (const Entity& entity : chosen) {
    const auto text = form->text(entity);
    if (!text) {
      complain(entity.name() + " has no form '" + request.form + "'");
      return nothingFound;
    }
    texts.push_back(*text);
  }
  output.printLine(joined(texts, form->separator));
  return found;
}

}  // namespace cli
