#include <windows.h>

#include <string>

#include "OptionsDialogFixture.h"
#include "base/Errors.h"
#include "fakes/IniCorpus.h"
#include "win32/main/ShellTrayIcon.h"
#include "win32/platform/DiskFile.h"
#include "win32/platform/PlatformProfileReader.h"

namespace kalvora {
namespace {

using UniqueEvent = UniqueHandle<HANDLE, &CloseHandle>;

/// A serial port COM9 that tells whether anybody has opened it. It leads to a pipe of the test's
/// own, which breaks off when it is opened, so that nobody waits for ever.
class WatchedPort {
 public:
  WatchedPort() {
    connection_.hEvent = opened_.get();
    ConnectNamedPipe(pipe_.get(), &connection_);
    RegisterWaitForSingleObject(&breakingOff_, opened_.get(), breakOff, pipe_.get(), INFINITE,
                                WT_EXECUTEONLYONCE);
    DefineDosDeviceW(DDD_RAW_TARGET_PATH, kPort, (L"\\??\\pipe\\" + pipeName_).c_str());
  }
  ~WatchedPort() {
    DefineDosDeviceW(DDD_REMOVE_DEFINITION, kPort, nullptr);
    UnregisterWaitEx(breakingOff_, INVALID_HANDLE_VALUE);
  }
  WatchedPort(const WatchedPort&) = delete;
  WatchedPort& operator=(const WatchedPort&) = delete;

  bool opened() const { return WaitForSingleObject(opened_.get(), 0) == WAIT_OBJECT_0; }
  static bool canBeOpened() {
    return static_cast<bool>(UniqueFile(
        CreateFileW(L"\\\\.\\COM9", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)));
  }

 private:
  static constexpr const wchar_t* kPort = L"COM9";

  static void CALLBACK breakOff(void* pipe, BOOLEAN /*timedOut*/) { DisconnectNamedPipe(pipe); }

  const std::wstring pipeName_ = L"kalvora-port-" + std::to_wstring(GetCurrentProcessId());
  const UniqueFile pipe_{CreateNamedPipeW((L"\\\\.\\pipe\\" + pipeName_).c_str(),
                                          PIPE_ACCESS_OUTBOUND | FILE_FLAG_OVERLAPPED,
                                          PIPE_TYPE_BYTE, 1, 0, 0, 0, nullptr)};
  const UniqueEvent opened_{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  OVERLAPPED connection_{};
  HANDLE breakingOff_ = nullptr;
};

/// A file whose name the system keeps for the port is never opened, whatever it is to be read as.
class PortNames : public OptionsDialogTest {
 protected:
  void expectNobodyOpenedIt() {
    EXPECT_FALSE(port_.opened());
    EXPECT_TRUE(WatchedPort::canBeOpened());
    EXPECT_TRUE(port_.opened()) << "it would have been seen";
  }

 private:
  WatchedPort port_;
};

TEST_F(PortNames, areNoFilesToBeRead) {
  EXPECT_THROW(files.read(folder.path() / "com9.txt", 1), FileError);
  EXPECT_TRUE(leadsToDevice(folder.path() / "com9.txt"));
  expectNobodyOpenedIt();
}

TEST_F(PortNames, areNoIniFiles) {
  PlatformProfileReader reader;
  EXPECT_EQ(askIni(reader, {"", "", "S", "K", ""}, folder.path() / "com9.ini"), kIniFallback);
  expectNobodyOpenedIt();
}

TEST_F(PortNames, areNoIconsOfTheTray) {
  ShellTrayIcon(GetDesktopWindow(), EventDelivery(guard), [](int) {
  }).setPicture(folder.path() / "com9.ico");
  expectNobodyOpenedIt();
}

TEST_F(PortNames, areNoIconsToChoose) {
  dialog.setIcons({folder.path() / "com9.ico"}, L"");
  expectNobodyOpenedIt();
}

}  // namespace
}  // namespace kalvora
