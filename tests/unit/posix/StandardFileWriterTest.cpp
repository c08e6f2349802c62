#include "posix/StandardFileWriter.h"

#include <gtest/gtest.h>

#include "fakes/FileWriterContract.h"

#ifdef __unix__
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>
#endif

namespace kalvora {

INSTANTIATE_TYPED_TEST_SUITE_P(StandardFileWriter, FileWriterContract, StandardFileWriter);

#ifdef __unix__

namespace {

/// While one lives, no file of this process can grow beyond so many bytes: as on a full disk, a
/// write ends short, and the next one fails.
class SmallDisk {
 public:
  explicit SmallDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit small{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  ~SmallDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, SIG_DFL);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  rlimit before_{};
};

using StandardFileWriterFaults = FileWriterContract<StandardFileWriter>;

TEST_F(StandardFileWriterFaults, aFullDiskKeepsTheOldFileAndLeavesNoTemporaryOne) {
  const auto file = folder_.write("a.txt", "old");
  std::wstring failure;
  {
    const SmallDisk disk(1000);
    failure = failureOf([&] { writer_.writeSafely(file, std::string(1001, 'x')); });
  }
  EXPECT_EQ(failure, L"This file cannot be written: " + file.wstring());
  EXPECT_EQ(contentOf(file), "old");
  EXPECT_TRUE(temporaries().empty());
}

TEST_F(StandardFileWriterFaults, aDiskJustLargeEnoughTakesTheFile) {
  const auto file = folder_.write("a.txt", "old");
  {
    const SmallDisk disk(1000);
    writer_.writeSafely(file, std::string(1000, 'x'));
  }
  EXPECT_EQ(contentOf(file), std::string(1000, 'x'));
}

TEST_F(StandardFileWriterFaults, aProgramKilledAtAnyMomentLeavesTheFileWhole) {
  const std::string kinds[] = {std::string(9000, 'a'), std::string(30000, 'b')};
  const auto file = folder_.write("a.txt", kinds[0]);
  std::mt19937 random(20261121);
  std::uniform_int_distribution<int> microseconds(0, 20000);
  for (int round = 0; round < 40; ++round) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      for (int i = 0;; ++i) writer_.writeSafely(file, kinds[i % 2]);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const std::optional<std::string> content = contentOf(file);
    ASSERT_TRUE(content == kinds[0] || content == kinds[1]) << round;
  }
}

}  // namespace

#endif

}  // namespace kalvora
