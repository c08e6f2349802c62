#include "posix/StandardFileOperations.h"

#ifdef __unix__
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#else
#include <fstream>
#endif

#include <system_error>
#include <utility>

#include "base/Text.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

FileResult resultOf(bool done) {
  return done ? FileResult::Done : FileResult::Failed;
}

#ifdef __unix__

FileResult lastResult() {
  if (errno == EEXIST) return FileResult::Exists;
  return errno == ENOSPC ? FileResult::DiskFull : FileResult::Failed;
}

class DescriptorFile : public NewFile {
 public:
  explicit DescriptorFile(const fs::path& file)
      : descriptor_(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)) {}
  ~DescriptorFile() override {
    if (isOpen()) ::close(descriptor_);
  }
  DescriptorFile(const DescriptorFile&) = delete;
  DescriptorFile& operator=(const DescriptorFile&) = delete;

  bool isOpen() const { return descriptor_ >= 0; }

  FileResult write(std::string_view bytes, std::size_t& count) override {
    ssize_t written = 0;
    do {
      written = ::write(descriptor_, bytes.data(), bytes.size());
    } while (written < 0 && errno == EINTR);
    count = written < 0 ? 0 : static_cast<std::size_t>(written);
    return written < 0 ? lastResult() : FileResult::Done;
  }
  FileResult flush() override {
    return ::fsync(descriptor_) == 0 ? FileResult::Done : lastResult();
  }
  FileResult close() override {
    return ::close(std::exchange(descriptor_, -1)) == 0 ? FileResult::Done : lastResult();
  }

 private:
  int descriptor_;
};

FileResult open(const fs::path& file, std::unique_ptr<NewFile>& opened) {
  auto made = std::make_unique<DescriptorFile>(file);
  if (!made->isOpen()) return lastResult();
  opened = std::move(made);
  return FileResult::Done;
}

/// Makes a rename last. Without it the old content might come back after a power cut, no more: so
/// a failure is no reason to tell the user that nothing was written.
void flushFolder(const fs::path& folder) {
  const int descriptor =
      ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  static_cast<void>(::fsync(descriptor));
  static_cast<void>(::close(descriptor));
}

#else

/// The C++ library knows neither exclusive creation nor the disk: enough for tests.
class StreamFile : public NewFile {
 public:
  explicit StreamFile(const fs::path& file) : stream_(file, std::ios::binary | std::ios::trunc) {}

  bool isOpen() const { return stream_.is_open(); }

  FileResult write(std::string_view bytes, std::size_t& count) override {
    const bool done =
        !stream_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).fail();
    count = done ? bytes.size() : 0;
    return resultOf(done);
  }
  FileResult flush() override { return resultOf(!stream_.flush().fail()); }
  FileResult close() override {
    stream_.close();
    return resultOf(!stream_.fail());
  }

 private:
  std::ofstream stream_;
};

FileResult open(const fs::path& file, std::unique_ptr<NewFile>& opened) {
  std::error_code error;
  if (fs::exists(file, error)) return FileResult::Exists;
  auto made = std::make_unique<StreamFile>(file);
  if (!made->isOpen()) return FileResult::Failed;
  opened = std::move(made);
  return FileResult::Done;
}

void flushFolder(const fs::path& /*folder*/) {}

#endif

}  // namespace

FileResult StandardFileOperations::create(const fs::path& file, std::unique_ptr<NewFile>& opened) {
  return open(file, opened);
}

FileResult StandardFileOperations::replace(const fs::path& from, const fs::path& to) {
  std::error_code error;
  // Not every system takes a new spelling over where it knows the file by both.
  const bool respelled = from != to && equalIgnoringCase(from.wstring(), to.wstring());
  const fs::path start = respelled ? fs::path(to.wstring() + L"~") : from;
  if (respelled) fs::rename(from, start, error);
  if (!error) fs::rename(start, to, error);
  if (!error) flushFolder(to.parent_path());
  return resultOf(!error);
}

FileResult StandardFileOperations::remove(const fs::path& file) {
  std::error_code error;
  if (fs::is_directory(file, error)) return FileResult::Failed;
  if (fs::remove(file, error)) return FileResult::Done;
  const bool missing = !error || error == std::errc::not_a_directory;
  return missing ? FileResult::Missing : FileResult::Failed;
}

std::optional<std::chrono::seconds> StandardFileOperations::age(const fs::path& file) const {
  std::error_code error;
  const fs::file_time_type written = fs::last_write_time(file, error);
  if (error) return std::nullopt;
  return std::chrono::duration_cast<std::chrono::seconds>(fs::file_time_type::clock::now() -
                                                          written);
}

FileResult StandardFileOperations::createFolder(const fs::path& folder) {
  std::error_code error;
  fs::create_directory(folder, error);
  return resultOf(fs::is_directory(folder, error));
}

}  // namespace kalvora
