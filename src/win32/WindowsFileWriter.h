#pragma once

#include "base/SafeFileWriter.h"
#include "win32/WindowsFileOperations.h"

namespace kalvora {

/// Changes the real files.
class WindowsFileWriter : public SafeFileWriter {
 public:
  WindowsFileWriter() : SafeFileWriter(operations_) {}

 private:
  WindowsFileOperations operations_;
};

}  // namespace kalvora
