#pragma once

#include "base/SafeFileWriter.h"
#include "posix/StandardFileOperations.h"

namespace kalvora {

/// Changes files without Windows, for tests and tools, of which one is at work at a time.
class StandardFileWriter : public SafeFileWriter {
 public:
  StandardFileWriter() : SafeFileWriter(operations_, 1) {}

 private:
  StandardFileOperations operations_;
};

}  // namespace kalvora
