// The program's operator new. A skin is read from files of some hundred kilobytes each, decoded,
// cut into pieces and let go; the heap of the C library would keep the room of all of it for good.
// So large blocks come straight from the system and go straight back. (The JPEG decoder asks the C
// library itself.)

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

// The step in which the system hands out addresses.
constexpr std::size_t kLarge = 64U << 10U;

/// Stands before each block and keeps it aligned as operator new promises.
struct alignas(__STDCPP_DEFAULT_NEW_ALIGNMENT__) Header {
  bool fromSystem;
};

void* roomFor(std::size_t size) noexcept {
  if (size > SIZE_MAX - sizeof(Header)) return nullptr;
  const bool large = size >= kLarge;
  const std::size_t whole = size + sizeof(Header);
  void* const room = large ? VirtualAlloc(nullptr, whole, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE)
                           : std::malloc(whole);
  return room == nullptr ? nullptr : new (room) Header{large} + 1;
}

}  // namespace

void* operator new(std::size_t size) {
  for (;;) {
    if (void* const block = roomFor(size)) return block;
    const std::new_handler handler = std::get_new_handler();
    if (handler == nullptr) throw std::bad_alloc();
    handler();
  }
}

void operator delete(void* block) noexcept {
  if (block == nullptr) return;
  auto* const header = static_cast<Header*>(block) - 1;
  if (header->fromSystem) {
    VirtualFree(header, 0, MEM_RELEASE);
  } else {
    std::free(header);
  }
}

void operator delete(void* block, std::size_t /*size*/) noexcept {
  operator delete(block);
}
