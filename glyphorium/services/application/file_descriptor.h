// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

namespace glyph {

/// Owns a file descriptor and closes it in the destructor. A negative number, which system calls return after
/// a failure, counts as not open and is not closed.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number) : number_(number) {}
  ~FileDescriptor() {
    if (isOpen()) close(number_);
  }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;

  int get() const { return number_; }
  bool isOpen() const { return number_ >= 0; }

 private:
  const int number_;
};

}  // namespace glyph
