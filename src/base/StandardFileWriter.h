#pragma once

#include "base/SafeFileWriter.h"
#include "base/StandardFileOperations.h"

namespace kalvora {

/// Changes files without Windows, for tests and tools.
class StandardFileWriter : public SafeFileWriter {
 public:
  StandardFileWriter() : SafeFileWriter(operations_) {}

 private:
  StandardFileOperations operations_;
};

}  // namespace kalvora
