#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "base/FileOperations.h"
#include "fakes/Fault.h"

namespace kalvora {

/// The steps of real file work, of which the Nth meets a fault. A write that fails or is killed has
/// put half of its bytes there. Of a killed program no further step reaches the disk.
class FaultyFileOperations : public FileOperations {
 public:
  explicit FaultyFileOperations(FileOperations& disk) : disk_(disk) {}

  /// From now on the Nth step, counted from 1, meets this. Only writes can end short, so for
  /// Shorten only they count.
  void arm(Fault fault, int step) {
    fault_ = fault;
    left_ = step;
  }
  /// Whether that step came.
  bool wasReached() const { return left_ <= 0; }

  /// What a step that fails says, such as that the disk is full.
  FileResult failure = FileResult::Failed;
  /// Nothing can be moved from one folder to another.
  bool foldersAreOnTwoDisks = false;
  /// What goes on in the world while a step is delayed.
  std::function<void()> whileDelayed = [] {};

  FileResult create(const std::filesystem::path& file, std::unique_ptr<NewFile>& opened) override {
    return step([&] {
      std::unique_ptr<NewFile> made;
      const FileResult result = disk_.create(file, made);
      if (made) opened = std::make_unique<FaultyFile>(*this, std::move(made));
      return result;
    });
  }
  FileResult replace(const std::filesystem::path& from, const std::filesystem::path& to) override {
    const bool isBetweenDisks = foldersAreOnTwoDisks && from.parent_path() != to.parent_path();
    return step([&] { return isBetweenDisks ? FileResult::Failed : disk_.replace(from, to); });
  }
  FileResult remove(const std::filesystem::path& file) override {
    return step([&] { return disk_.remove(file); });
  }
  std::optional<std::chrono::seconds> age(const std::filesystem::path& file) const override {
    return disk_.age(file);
  }
  FileResult createFolder(const std::filesystem::path& folder) override {
    return step([&] { return disk_.createFolder(folder); });
  }

 private:
  class FaultyFile : public NewFile {
   public:
    FaultyFile(FaultyFileOperations& owner, std::unique_ptr<NewFile> file)
        : owner_(owner), file_(std::move(file)) {}
    FileResult write(std::string_view bytes, std::size_t& count) override {
      return owner_.write(*file_, bytes, count);
    }
    FileResult flush() override {
      return owner_.step([&] { return file_->flush(); });
    }
    FileResult close() override {
      return owner_.step([&] { return file_->close(); });
    }

   private:
    FaultyFileOperations& owner_;
    std::unique_ptr<NewFile> file_;
  };

  bool meetsFault() { return left_ > 0 && --left_ == 0; }

  template <typename Work>
  FileResult step(const Work& work) {
    if (dead_) return FileResult::Failed;
    if (fault_ == Fault::Shorten || !meetsFault()) return work();
    if (fault_ == Fault::Delay) whileDelayed();
    dead_ = fault_ == Fault::KillBefore || fault_ == Fault::KillAfter;
    if (fault_ == Fault::Fail || fault_ == Fault::KillBefore) return failure;
    return work();
  }

  FileResult write(NewFile& file, std::string_view bytes, std::size_t& count) {
    if (dead_) return FileResult::Failed;
    const bool meets = meetsFault();
    if (meets && fault_ == Fault::Delay) whileDelayed();
    if (!meets || fault_ == Fault::Delay) return file.write(bytes, count);
    dead_ = fault_ == Fault::KillBefore || fault_ == Fault::KillAfter;
    const FileResult written = file.write(bytes.substr(0, bytes.size() / 2), count);
    return fault_ == Fault::Shorten ? written : failure;
  }

  FileOperations& disk_;
  Fault fault_ = Fault::Fail;
  int left_ = -1;
  bool dead_ = false;
};

}  // namespace kalvora
